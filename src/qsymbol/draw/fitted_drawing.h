#pragma once

#include "qsymbol/draw/surface.h"
#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// Draws the whole symbol as large as it fits into a box of the given size in pixels, without a margin.
///
/// The size is the symbol's Width and Height; when neither is positive, the extent of its points with the
/// circles' radii. A box or an extent without size draws nothing.
void DrawFitted(const Symbol& symbol, Surface& surface, double boxWidth, double boxHeight);

} // namespace qsymbol
