#include "qsymbol/geometry/placement.h"

#include "qsymbol/geometry/turn.h"

namespace qsymbol {

Placement::Placement(qmath::Point reference, const SymbolPosition& position, double factor)
    : refX_(reference.x), refY_(reference.y), atX_(position.at.x), atY_(position.at.y),
      angle_(position.angle), factor_(factor) {
    const Turn& turn = TurnBy(angle_);
    cosine_ = factor * turn.cosine;
    sine_ = -factor * turn.sine;
}

void Placement::Map(std::span<const qmath::Point> points, qmath::Point* mapped) const {
    for (const qmath::Point point : points)
        *mapped++ = Map(point);
}

} // namespace qsymbol
