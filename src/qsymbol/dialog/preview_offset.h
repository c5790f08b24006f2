#pragma once

#include "qmath/point.h"

#include <cstdint>

namespace qsymbol {

/// How far a symbol that is fitted into a box, and so begins at its top left corner, is to be moved to stand
/// in its middle. A symbol without width or height, whose extent is not known, stays where it is.
qmath::Point PreviewOffset(std::int32_t symbolWidth, std::int32_t symbolHeight, std::int32_t boxWidth,
                           std::int32_t boxHeight);

} // namespace qsymbol
