#pragma once

#include "qmath/point.h"
#include "qsymbol/geometry/placement.h"
#include "qsymbol/model/element_record.h"

#include <cstdint>
#include <optional>

namespace qsymbol {

/// A placed circle or arc as the ARC entity wants it; counter-clockwise, y of the centre still downwards.
struct ArcGeometry {
    qmath::Point centre;
    std::int32_t radius = 0; ///< logical units
    double startDegrees = 0;
    double endDegrees = 0;
};

/// The geometry of a placed circle or arc record.
///
/// Four points or more are taken as they stand: centre, a point on the circle, start, end. A circle of fewer
/// points has the record's radius and makes a full turn, 0 to 360 degrees. An arc of three points (centre,
/// start, end) passes through its start; where start and end lie in one direction it makes a full turn, as it is
/// drawn. Records with too few points to be drawn give nothing. Error 6 outside the 32-bit range.
std::optional<ArcGeometry> PlacedArc(const ElementRecord& element, const Placement& placement);

} // namespace qsymbol
