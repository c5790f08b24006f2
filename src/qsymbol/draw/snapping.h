#pragma once

#include "qmath/point.h"
#include "qsymbol/geometry/symbol_position.h"
#include "qsymbol/geometry/transformation.h"
#include "qsymbol/model/symbol.h"

#include <cstdint>
#include <optional>

namespace qsymbol {

/// A symbol point within the catch range.
struct CaughtPoint {
    qmath::Point world;
    qmath::Point screen;
};

/// The first characteristic point, in element and point order, nearer than range pixels to (x, y) in
/// both axes.
///
/// A polyline offers its vertices, a circle its centre, an arc its centre, start and end, a text nothing.
/// Errors of the transformation pass through; error 6 outside the 32-bit range.
std::optional<CaughtPoint> CatchPt(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                                   const Transformation& transformation, float x, float y,
                                   std::int16_t range);

} // namespace qsymbol
