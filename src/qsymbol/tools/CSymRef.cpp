#include "qsymbol/tools/CSymRef.h"

#include "base/checked.h"
#include "qmath/math_util.h"

#include <utility>

namespace qsymbol {

void CSymRef::Init(std::int32_t objectId, qmath::Point delta, double angle,
                   std::shared_ptr<const DrawableSymbol> symbol) {
    objectId_ = objectId;
    delta_ = delta;
    angle_ = angle;
    symbol_ = std::move(symbol);
}

void CSymRef::CopyFrom(const CSymRef& other) {
    Init(other.objectId_, other.delta_, other.angle_,
         other.symbol_ == nullptr ? nullptr : other.symbol_->Copy());
}

SymbolPosition CSymRef::GetAbsoluteData(const SymbolPosition& object) const {
    double x = delta_.x;
    double y = delta_.y;
    qmath::RotatePoint(x, y, -object.angle); // world y grows downwards, angles count counter-clockwise
    return {{base::RoundToLong(object.at.x + x), base::RoundToLong(object.at.y + y)}, object.angle + angle_};
}

void CSymRef::Draw(const SymbolPosition& object, DrawingTarget& target) const {
    if (symbol_ != nullptr)
        symbol_->Draw(GetAbsoluteData(object), target);
}

} // namespace qsymbol
