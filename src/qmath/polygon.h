#pragma once

#include "qmath/outline.h"

#include <utility>
#include <vector>

namespace qmath {

/// A closed polygon that keeps its vertices; the rules are those of the outline tests.
class Polygon {
public:
    Polygon() = default;
    explicit Polygon(std::vector<Point> points) : points_(std::move(points)) {}

    /// A point on the outline is inside.
    bool PtInside(Point point) const { return OutlineContains(points_, point); }
    /// True when polygon and rectangle share at least one point.
    bool Meets(const Rect& rect) const { return OutlineMeets(points_, rect); }

private:
    std::vector<Point> points_;
};

} // namespace qmath
