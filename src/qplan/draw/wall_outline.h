#pragma once

#include "qmath/vector.h"
#include "qplan/model/sheet.h"

#include <array>
#include <cmath>

namespace qplan {

/// The four corners of a wall in millimetres: its middle line, widened by half the thickness to both sides.
inline std::array<qmath::Vector, 4> OutlineOf(const Wall& wall) {
    const double dx = static_cast<double>(wall.to.x) - wall.from.x;
    const double dy = static_cast<double>(wall.to.y) - wall.from.y;
    const double half = wall.thickness / (2 * std::hypot(dx, dy));
    const double sideX = -dy * half;
    const double sideY = dx * half;
    return {{{wall.from.x + sideX, wall.from.y + sideY},
             {wall.to.x + sideX, wall.to.y + sideY},
             {wall.to.x - sideX, wall.to.y - sideY},
             {wall.from.x - sideX, wall.from.y - sideY}}};
}

} // namespace qplan
