#pragma once

#include "qsymbol/geometry/transformation.h"

namespace qplan {

/// How the user looks at a plan while he points at it.
struct View {
    const qsymbol::Transformation& transformation;
    double screenFactor = 1; ///< that of hit tests and snapping; 0: unscaled
};

} // namespace qplan
