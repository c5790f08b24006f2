#pragma once

#include "qmath/point.h"
#include "qmath/rect.h"

#include <span>

/// Tests on a closed polygon given by its vertices, the last joined to the first. Exact for all
/// 32-bit values.
///
/// Inside is what the even-odd rule says, and every point of the outline. One vertex is a point, two are a
/// segment, none is nothing.
namespace qmath {

bool OutlineContains(std::span<const Point> outline, Point point);

/// True when both share at least one point, also when one lies inside the other.
/// A rectangle with exchanged edges is taken as the one between them.
bool OutlineMeets(std::span<const Point> outline, const Rect& rect);

} // namespace qmath
