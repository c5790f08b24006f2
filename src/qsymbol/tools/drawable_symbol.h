#pragma once

#include "qsymbol/geometry/symbol_position.h"
#include "qsymbol/tools/drawing_target.h"

#include <memory>

namespace qsymbol {

/// Contract: a symbol as the placing tools know it. Its holders share it, so that a change of the symbol by
/// its owner shows with the next draw.
class DrawableSymbol {
public:
    virtual ~DrawableSymbol() = default;

    /// Draws the symbol at the place, in its own colours and unscaled. Errors pass through.
    virtual void Draw(const SymbolPosition& place, DrawingTarget& target) const = 0;
    /// For CSymRef::CopyFrom: a symbol of its own with path, reference point and elements; its size is 0.
    virtual std::shared_ptr<const DrawableSymbol> Copy() const = 0;
};

} // namespace qsymbol
