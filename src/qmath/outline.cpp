#include "qmath/outline.h"

#include <algorithm>
#include <cstdint>

namespace qmath {

namespace {

/// The way from one point to another: up to 32 bits and a sign.
struct Way {
    std::int64_t x;
    std::int64_t y;
};

Way Between(Point from, Point to) {
    return {std::int64_t{to.x} - from.x, std::int64_t{to.y} - from.y};
}

/// True when the way fits 31 bits and a sign; the cross product of two such ways fits 64 bits.
bool IsShort(Way way) {
    constexpr std::uint64_t kReach = 0x80000000U;
    const std::uint64_t x = static_cast<std::uint64_t>(way.x) + kReach;
    const std::uint64_t y = static_cast<std::uint64_t>(way.y) + kReach;
    return (x | y) >> 32 == 0;
}

int Sign(std::int64_t value) {
    return (value > 0) - (value < 0);
}

std::uint64_t Magnitude(std::int64_t value) {
    return static_cast<std::uint64_t>(value < 0 ? -value : value);
}

/// Sign of a.x * b.y − a.y * b.x for ways whose products need 64 bits and a sign: compares the parts.
int CrossSign(Way a, Way b) {
    const int sign1 = Sign(a.x) * Sign(b.y);
    const int sign2 = Sign(a.y) * Sign(b.x);
    if (sign1 != sign2)
        return sign1 < sign2 ? -1 : 1;
    const std::uint64_t product1 = Magnitude(a.x) * Magnitude(b.y);
    const std::uint64_t product2 = Magnitude(a.y) * Magnitude(b.x);
    if (product1 == product2)
        return 0;
    return (product1 > product2) == (sign1 > 0) ? 1 : -1;
}

/// A number with the sign of the cross product.
std::int64_t Cross(Way a, Way b) {
    return IsShort(a) && IsShort(b) ? a.x * b.y - a.y * b.x : CrossSign(a, b);
}

/// Whether an edge from a to b, seen from a point on its line, has the point between its ends.
bool IsAround(Way a, Way b) {
    return Sign(a.x) * Sign(b.x) <= 0 && Sign(a.y) * Sign(b.y) <= 0;
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
        // Count the edges that cross the ray to the right. Without branches: where they lie is anyone's
        // guess.
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
