#pragma once

#include "qmath/rect.h"
#include "qsymbol/geometry/placement.h"
#include "qsymbol/geometry/symbol_position.h"
#include "qsymbol/model/symbol.h"

#include <array>

namespace qsymbol {

/// World coordinates of the outline box's corners (0, 0), (Width, 0), (Width, Height), (0, Height). Error 6.
std::array<qmath::Point, 4> OutlineCorners(const Symbol& symbol, const SymbolPosition& position,
                                           double screenFactor);

/// The rectangle around the placed outline box in world coordinates. Error 6 outside the 32-bit range.
qmath::Rect GetBoundingRect(const Symbol& symbol, const SymbolPosition& position, double screenFactor);

} // namespace qsymbol
