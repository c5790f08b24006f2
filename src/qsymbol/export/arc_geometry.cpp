#include "qsymbol/export/arc_geometry.h"

#include "base/checked.h"
#include "qmath/arc.h"
#include "qmath/math_util.h"

#include <cmath>

namespace qsymbol {

namespace {

constexpr double kFullTurn = 360;

double DirectionDegrees(qmath::Point centre, qmath::Point point) {
    // y grows downwards here and upwards in the file.
    const double dx = static_cast<double>(point.x) - centre.x;
    const double dy = static_cast<double>(centre.y) - point.y;
    return qmath::VectorAngle(dx, dy) / qmath::kPi * 180;
}

double SweepDegrees(const qmath::Arc& arc) {
    return std::fmod(DirectionDegrees(arc.centre, arc.end) - DirectionDegrees(arc.centre, arc.start) +
                         kFullTurn,
                     kFullTurn);
}

ArcGeometry Through(qmath::Point centre, qmath::Point onCircle, qmath::Point start, qmath::Point end) {
    return {.centre = centre,
            .radius = base::RoundToLong(qmath::Distance(centre, onCircle)),
            .startDegrees = DirectionDegrees(centre, start),
            .endDegrees = DirectionDegrees(centre, end)};
}

} // namespace

std::optional<ArcGeometry> PlacedArc(const ElementRecord& element, const Placement& placement) {
    const std::size_t count = element.points.size();
    const auto placed = [&](std::size_t index) { return placement.Map(element.points[index]); };
    if (count >= 4)
        return Through(placed(0), placed(1), placed(2), placed(3));

    if (element.type == ElementType::Circle && count >= 1) {
        // Scaled as a length: the distance of two points that were turned and rounded is off by up to a unit.
        const double radius = std::abs(static_cast<double>(placement.MapLength(element.radius)));
        return ArcGeometry{.centre = placed(0),
                           .radius = base::RoundToLong(radius),
                           .startDegrees = 0,
                           .endDegrees = kFullTurn};
    }
    if (element.type == ElementType::Arc && count == 3) {
        const qmath::Point centre = placed(0);
        const qmath::Point start = placed(1);
        const qmath::Point end = placed(2);
        ArcGeometry arc = Through(centre, start, start, end);
        const qmath::Arc own{element.points[0], element.points[1], element.points[2]};
        const bool meets = qmath::Arc{centre, start, end}.IsFullTurn();
        if (own.IsFullTurn() || (meets && !own.IsBelowHalfTurn())) {
            arc.startDegrees = 0;
            arc.endDegrees = kFullTurn;
        } else if (meets) {
            // Equal angles would be read as a full turn: the sweep that rounding took away comes back.
            arc.endDegrees = std::fmod(arc.startDegrees + SweepDegrees(own), kFullTurn);
        }
        return arc;
    }
    return std::nullopt;
}

} // namespace qsymbol
