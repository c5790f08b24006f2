#include "qsymbol/geometry/placement.h"

#include <cmath>

namespace qsymbol {

namespace {

struct Turn {
    double angle = 0;
    double sine = 0;
    double cosine = 1;
};

/// Sine and cosine of the last angle asked for. A host draws and tests many symbols at the same few angles,
/// and the two functions cost as much as all the rest of a hit test.
const Turn& TurnBy(double angle) {
    static Turn last;
    if (angle != last.angle)
        last = {angle, std::sin(angle), std::cos(angle)};
    return last;
}

} // namespace

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
