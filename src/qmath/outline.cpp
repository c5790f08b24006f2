#include "qmath/outline.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace qmath {

namespace {

/// The distance of two 32-bit values, below 2^32; the product of two such distances fits 64 bits unsigned.
std::uint64_t Span(std::int32_t a, std::int32_t b) {
    const std::int64_t difference = std::int64_t{a} - b;
    return static_cast<std::uint64_t>(difference < 0 ? -difference : difference);
}

int Sign(std::int32_t a, std::int32_t b) {
    return a < b ? -1 : a > b;
}

enum class Crossing { None, Right, OnEdge };

/// How the ray from p to the right meets the edge a-b; the edge's upper end does not count as met.
Crossing CrossEdge(Point a, Point b, Point p) {
    if (a.y > b.y)
        std::swap(a, b);
    if (p.y < a.y || p.y > b.y || p.x > std::max(a.x, b.x))
        return Crossing::None;
    const bool belowEnd = p.y < b.y;
    if (p.x < std::min(a.x, b.x))
        return belowEnd ? Crossing::Right : Crossing::None;
    // p lies in the edge's box: compare how far p and the edge have moved away from a.x at p's height.
    const std::uint64_t edge = Span(b.x, a.x) * Span(p.y, a.y);
    const std::uint64_t point = Span(p.x, a.x) * Span(b.y, a.y);
    if (edge == point)
        return Crossing::OnEdge;
    const bool edgeIsRight = (b.x > a.x) == (edge > point);
    return belowEnd && edgeIsRight ? Crossing::Right : Crossing::None;
}

/// On which side of the line a-b the point lies: -1, 0 (on it) or 1.
int Side(Point a, Point b, Point p) {
    const int sign1 = Sign(b.x, a.x) * Sign(p.y, a.y);
    const int sign2 = Sign(b.y, a.y) * Sign(p.x, a.x);
    if (sign1 != sign2)
        return sign1 < sign2 ? -1 : 1;
    const std::uint64_t product1 = Span(b.x, a.x) * Span(p.y, a.y);
    const std::uint64_t product2 = Span(b.y, a.y) * Span(p.x, a.x);
    if (product1 == product2)
        return 0;
    return (product1 < product2) == (sign1 > 0) ? -1 : 1;
}

/// Whether the segment a-b and the rectangle share a point: neither an axis nor the segment's normal parts
/// them.
bool SegmentMeets(Point a, Point b, const Rect& rect) {
    if (std::max(a.x, b.x) < rect.left || std::min(a.x, b.x) > rect.right || std::max(a.y, b.y) < rect.top ||
        std::min(a.y, b.y) > rect.bottom)
        return false;
    // The two corners that lie farthest apart across the segment.
    const bool falling = (b.x > a.x) == (b.y > a.y);
    const Point corner1{rect.left, falling ? rect.bottom : rect.top};
    const Point corner2{rect.right, falling ? rect.top : rect.bottom};
    return Side(a, b, corner1) * Side(a, b, corner2) <= 0;
}

} // namespace

bool OutlineContains(std::span<const Point> outline, Point point) {
    if (outline.empty())
        return false;
    bool inside = false;
    Point from = outline.back();
    for (const Point to : outline) {
        const Crossing crossing = CrossEdge(from, to, point);
        if (crossing == Crossing::OnEdge)
            return true;
        inside ^= crossing == Crossing::Right;
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
