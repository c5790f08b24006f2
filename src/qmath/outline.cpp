#include "qmath/outline.h"

#include "qmath/cross_product.h"

#include <algorithm>
#include <cstdint>

namespace qmath {

namespace {

/// Whether an edge from a to b, seen from a point on its line, has the point between its ends.
bool IsAround(Way a, Way b) {
    return Sign(a.x) * Sign(b.x) <= 0 && Sign(a.y) * Sign(b.y) <= 0;
}

/// Whether the segment a-b and the rectangle share a point: neither an axis nor the segment's normal
/// parts them.
bool SegmentMeets(Point a, Point b, const Rect& rect) {
    if (std::max(a.x, b.x) < rect.left || std::min(a.x, b.x) > rect.right || std::max(a.y, b.y) < rect.top ||
        std::min(a.y, b.y) > rect.bottom)
        return false;
    // The two corners that lie farthest apart across the segment.
    const bool falling = (b.x > a.x) == (b.y > a.y);
    const Point corner1{rect.left, falling ? rect.bottom : rect.top};
    const Point corner2{rect.right, falling ? rect.top : rect.bottom};
    const Way way = Between(a, b);
    return Sign(Cross(way, Between(a, corner1))) * Sign(Cross(way, Between(a, corner2))) <= 0;
}

} // namespace

bool OutlineContains(std::span<const Point> outline, Point point) {
    if (outline.empty())
        return false;
    bool inside = false;
    Way from = Between(point, outline.back());
    for (const Point& vertex : outline) {
        const Way to = Between(point, vertex);
        const std::int64_t cross = Cross(from, to);
        if (cross == 0 && IsAround(from, to))
            return true;
        // Count the edges that cross the ray to the right. Without branches: where they lie is
        // anyone's guess.
        const bool crossesHeight = (from.y <= 0) != (to.y <= 0);
        const bool isRight = (cross > 0) == (to.y > 0);
        inside ^= crossesHeight & isRight;
        from = to;
    }
    return inside;
}

bool OutlineMeets(std::span<const Point> outline, const Rect& rect) {
    if (outline.empty())
        return false;
    const Rect ordered{std::min(rect.left, rect.right), std::min(rect.top, rect.bottom),
                       std::max(rect.left, rect.right), std::max(rect.top, rect.bottom)};
    Point from = outline.back();
    for (const Point to : outline) {
        if (SegmentMeets(from, to, ordered))
            return true;
        from = to;
    }
    // No edge touches the rectangle, so it lies wholly inside or wholly outside.
    return OutlineContains(outline, {ordered.left, ordered.top});
}

} // namespace qmath
