#pragma once

#include "qsymbol/geometry/draw_factors.h"

/// The factors of the last symbol drawing of this thread. The only state that drawing leaves behind: the core
/// is handed what it needs.
namespace last_factors {

/// What every drawing of a symbol begins with.
void Keep(const qsymbol::DrawFactors& factors);

/// The factor that bounds, hit tests, snapping and DXF follow; 0 before the first drawing.
double Screen();

} // namespace last_factors
