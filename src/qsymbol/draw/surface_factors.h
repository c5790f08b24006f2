#pragma once

#include "qsymbol/draw/surface.h"
#include "qsymbol/geometry/draw_factors.h"

namespace qsymbol {

/// What the factors of a draw call come to on one surface.
struct SurfaceFactors {
    double geometry = 1;
    double text = 1;
};

/// The printer factor counts on the printer and in the print preview, the screen factor in the plan's main
/// drawing area alone. Asks the surface for its kind and, unless it is the printer, for its name.
SurfaceFactors FactorsFor(Surface& surface, const DrawFactors& factors);

} // namespace qsymbol
