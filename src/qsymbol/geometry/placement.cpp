#include "qsymbol/geometry/placement.h"

#include <cmath>

namespace qsymbol {

Placement::Placement(qmath::Point reference, const SymbolPosition& position, double factor)
    : cosine_(factor * std::cos(-position.angle)), sine_(factor * std::sin(-position.angle)),
      refX_(reference.x), refY_(reference.y), atX_(position.at.x), atY_(position.at.y),
      angle_(position.angle), factor_(factor) {}

void Placement::Map(std::span<const qmath::Point> points, qmath::Point* mapped) const {
    for (const qmath::Point point : points)
        *mapped++ = Map(point);
}

} // namespace qsymbol
