#include "support/outline_reference.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace support {

namespace {

__extension__ using Wide = __int128;

struct WidePoint {
    Wide x;
    Wide y;
};

WidePoint Widen(qmath::Point point) {
    return {point.x, point.y};
}

int Turn(WidePoint a, WidePoint b, WidePoint c) {
    const Wide cross = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    return (cross > 0) - (cross < 0);
}

bool IsOn(WidePoint a, WidePoint b, WidePoint p) {
    return Turn(a, b, p) == 0 && p.x >= std::min(a.x, b.x) && p.x <= std::max(a.x, b.x) &&
           p.y >= std::min(a.y, b.y) && p.y <= std::max(a.y, b.y);
}

bool Intersect(WidePoint a, WidePoint b, WidePoint c, WidePoint d) {
    if (IsOn(a, b, c) || IsOn(a, b, d) || IsOn(c, d, a) || IsOn(c, d, b))
        return true;
    return Turn(a, b, c) * Turn(a, b, d) < 0 && Turn(c, d, a) * Turn(c, d, b) < 0;
}

} // namespace

bool ReferenceContains(std::span<const qmath::Point> outline, qmath::Point point) {
    const WidePoint p = Widen(point);
    // Rises by one over more than the whole range: meets no other point of whole coordinates within it.
    const WidePoint far{p.x + (Wide{1} << 40), p.y + 1};
    bool inside = false;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const WidePoint a = Widen(outline[i]);
        const WidePoint b = Widen(outline[(i + 1) % outline.size()]);
        if (IsOn(a, b, p))
            return true;
        inside ^= Turn(p, far, a) * Turn(p, far, b) < 0 && Turn(a, b, p) * Turn(a, b, far) < 0;
    }
    return inside;
}

bool ReferenceMeets(std::span<const qmath::Point> outline, const qmath::Rect& rect) {
    const std::array<qmath::Point, 4> corners{
        {{rect.left, rect.top}, {rect.right, rect.top}, {rect.right, rect.bottom}, {rect.left, rect.bottom}}};
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const qmath::Point a = outline[i];
        const qmath::Point b = outline[(i + 1) % outline.size()];
        if (a.x >= rect.left && a.x <= rect.right && a.y >= rect.top && a.y <= rect.bottom)
            return true;
        for (std::size_t k = 0; k < 4; ++k)
            if (Intersect(Widen(a), Widen(b), Widen(corners[k]), Widen(corners[(k + 1) % 4])))
                return true;
    }
    return std::ranges::any_of(corners,
                               [&](qmath::Point corner) { return ReferenceContains(outline, corner); });
}

} // namespace support
