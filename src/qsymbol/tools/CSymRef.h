#pragma once

#include "qmath/point.h"
#include "qsymbol/tools/drawable_symbol.h"

#include <cstdint>
#include <memory>

namespace qsymbol {

/// A symbol tied to an object of the host's plan: placed and turned relative to that object.
class CSymRef {
public:
    /// delta: insertion point from the object's position while that object is not turned, in logical units;
    /// angle: radians, added to the object's. The symbol is shared, and may be missing.
    void Init(std::int32_t objectId, qmath::Point delta, double angle,
              std::shared_ptr<const DrawableSymbol> symbol);
    /// Becomes a copy with a symbol of its own, as CSymRefColl::Append keeps it.
    void CopyFrom(const CSymRef& other);

    std::int32_t ObjId() const { return objectId_; }
    std::int32_t DeltaX() const { return delta_.x; }
    std::int32_t DeltaY() const { return delta_.y; }
    double Angle() const { return angle_; }
    const std::shared_ptr<const DrawableSymbol>& Symbol() const { return symbol_; }

    /// Where the symbol stands when the object stands at the given place. Error 6 outside 32 bits.
    SymbolPosition GetAbsoluteData(const SymbolPosition& object) const;
    /// Draws the symbol for an object at the given place; nothing without a symbol.
    void Draw(const SymbolPosition& object, DrawingTarget& target) const;

private:
    std::int32_t objectId_ = 0;
    qmath::Point delta_{0, 0};
    double angle_ = 0;
    std::shared_ptr<const DrawableSymbol> symbol_;
};

} // namespace qsymbol
