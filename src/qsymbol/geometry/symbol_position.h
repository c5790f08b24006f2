#pragma once

#include "qmath/point.h"

namespace qsymbol {

/// Where a host has placed a symbol.
struct SymbolPosition {
    qmath::Point at;  ///< insertion point in world coordinates
    double angle = 0; ///< radians, counter-clockwise
};

} // namespace qsymbol
