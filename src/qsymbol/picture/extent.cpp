#include "qsymbol/picture/extent.h"

#include "qmath/math_util.h"

#include <algorithm>
#include <cmath>

namespace qsymbol {

void Extent::Include(qmath::Vector point, double reach) {
    left_ = std::min(left_, point.x - reach);
    top_ = std::min(top_, point.y - reach);
    right_ = std::max(right_, point.x + reach);
    bottom_ = std::max(bottom_, point.y + reach);
}

void Extent::Include(const Extent& other) {
    left_ = std::min(left_, other.left_);
    top_ = std::min(top_, other.top_);
    right_ = std::max(right_, other.right_);
    bottom_ = std::max(bottom_, other.bottom_);
}

void Extent::IncludeArc(qmath::Vector centre, double radius, double start, double sweep, double reach) {
    const auto include = [&](double angle) {
        Include({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)}, reach);
    };
    include(start);
    include(start + sweep);
    // The extremes lie on the axes, where the arc crosses them.
    constexpr double kQuarter = qmath::kPi / 2;
    const double first = std::ceil(start / kQuarter);
    for (int i = 0; (first + i) * kQuarter < start + sweep; ++i)
        include((first + i) * kQuarter);
}

} // namespace qsymbol
