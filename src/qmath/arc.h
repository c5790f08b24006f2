#pragma once

#include "qmath/cross_product.h"
#include "qmath/point.h"

namespace qmath {

/// An arc as the GDI takes it: it runs counter-clockwise, y growing downwards, from the ray through its start to the
/// ray through its end. A point on the centre stands for the ray to the right. Exact for all 32-bit points.
struct Arc {
    Point centre;
    Point start;
    Point end;

    constexpr Way StartRay() const { return Ray(start); }
    constexpr Way EndRay() const { return Ray(end); }

    /// Start and end lie in one direction, whatever their distances: a full turn.
    constexpr bool IsFullTurn() const {
        const Way from = StartRay();
        const Way to = EndRay();
        return Cross(from, to) == 0 && Sign(from.x) == Sign(to.x) && Sign(from.y) == Sign(to.y);
    }
    constexpr bool IsBelowHalfTurn() const { return Cross(StartRay(), EndRay()) < 0; }

    /// Whether the ray in a direction meets the arc, its ends included.
    constexpr bool Covers(Way direction) const {
        if (IsFullTurn())
            return true;
        const bool afterStart = Cross(StartRay(), direction) <= 0;
        const bool beforeEnd = Cross(direction, EndRay()) <= 0;
        return IsBelowHalfTurn() ? afterStart && beforeEnd : afterStart || beforeEnd;
    }

private:
    constexpr Way Ray(Point point) const { return point == centre ? Way{1, 0} : Between(centre, point); }
};

} // namespace qmath
