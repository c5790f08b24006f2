#pragma once

#include "qmath/box.h"
#include "qmath/vector.h"

namespace qsymbol {

/// Around the arc from `start` over `sweep` radians in the direction of growing angles, y growing downwards, with so much
/// on either side of its line.
qmath::Box ArcBounds(qmath::Vector centre, double radius, double start, double sweep, double reach);

} // namespace qsymbol
