#include "wall_outline.h"

#include <cmath>

std::array<Position, 4> Outline(const Wall& wall) {
    const double dx = wall.to.x - wall.from.x;
    const double dy = wall.to.y - wall.from.y;
    const double half = wall.thickness / (2 * std::hypot(dx, dy));
    const double sideX = -dy * half;
    const double sideY = dx * half;
    return {{{wall.from.x + sideX, wall.from.y + sideY},
             {wall.to.x + sideX, wall.to.y + sideY},
             {wall.to.x - sideX, wall.to.y - sideY},
             {wall.from.x - sideX, wall.from.y - sideY}}};
}
