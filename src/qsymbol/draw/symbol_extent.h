#pragma once

#include "qmath/rect.h"
#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// The smallest rectangle in the symbol's own coordinates around all points that are drawn, circles and arcs
/// with their whole square (cut off at the 32-bit range). All 0 for a symbol without points.
qmath::Rect SymbolExtent(const Symbol& symbol);

} // namespace qsymbol
