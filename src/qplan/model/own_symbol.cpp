#include "qplan/model/own_symbol.h"

#include "qsymbol/draw/bounds.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/symbol_drawing.h"

namespace qplan {

using qsymbol::SymbolPosition;

void OwnSymbol::Put(qsymbol::Symbol symbol) {
    symbol_ = std::make_shared<const qsymbol::Symbol>(std::move(symbol));
    ++edition_;
}

bool OwnSymbol::IsHitAt(const SymbolPosition& position, const View& view, qmath::Point screen) const {
    return ObjIdentByPt(*symbol_, position, view.screenFactor, view.transformation, screen);
}

bool OwnSymbol::IsHitBy(const SymbolPosition& position, const View& view, const qmath::Rect& screen) const {
    return ObjIdentByRect(*symbol_, position, view.screenFactor, view.transformation, screen);
}

std::optional<qsymbol::CaughtPoint> OwnSymbol::CatchPt(const SymbolPosition& position, const View& view,
                                                       float x, float y, std::int16_t range) const {
    return qsymbol::CatchPt(*symbol_, position, view.screenFactor, view.transformation, x, y, range);
}

qmath::Rect OwnSymbol::Bounds(const SymbolPosition& position, double screenFactor) const {
    return GetBoundingRect(*symbol_, position, screenFactor);
}

void OwnSymbol::Draw(const SymbolPosition& position, qsymbol::Surface& surface,
                     const qsymbol::Transformation& transformation, const qsymbol::DrawFactors& factors,
                     std::int32_t markColor) const {
    DrawSymbol(*symbol_, position, surface, transformation, factors, markColor);
}

} // namespace qplan
