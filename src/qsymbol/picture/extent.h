#pragma once

#include "qmath/vector.h"

#include <limits>

namespace qsymbol {

/// The smallest upright rectangle around everything that was included.
class Extent {
public:
    bool IsEmpty() const { return left_ > right_; }
    double Left() const { return left_; }
    double Top() const { return top_; }
    double Right() const { return right_; }
    double Bottom() const { return bottom_; }
    double Width() const { return IsEmpty() ? 0 : right_ - left_; }
    double Height() const { return IsEmpty() ? 0 : bottom_ - top_; }

    /// A point and what lies up to `reach` around it.
    void Include(qmath::Vector point, double reach = 0);
    void Include(const Extent& other);
    /// The arc from `start` over `sweep` radians in the direction of growing angles, y growing downwards.
    void IncludeArc(qmath::Vector centre, double radius, double start, double sweep, double reach);

private:
    static constexpr double kFar = std::numeric_limits<double>::infinity();

    double left_ = kFar;
    double top_ = kFar;
    double right_ = -kFar;
    double bottom_ = -kFar;
};

} // namespace qsymbol
