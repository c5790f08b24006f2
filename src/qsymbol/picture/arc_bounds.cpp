#include "qsymbol/picture/arc_bounds.h"

#include "qmath/math_util.h"

#include <cmath>

namespace qsymbol {

qmath::Box ArcBounds(qmath::Vector centre, double radius, double start, double sweep, double reach) {
    qmath::Box bounds;
    const auto include = [&](double angle) {
        bounds.Include(centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle), reach);
    };
    include(start);
    include(start + sweep);
    // The extremes lie on the axes, where the arc crosses them.
    constexpr double kQuarter = qmath::kPi / 2;
    const double first = std::ceil(start / kQuarter);
    for (int i = 0; (first + i) * kQuarter < start + sweep; ++i)
        include((first + i) * kQuarter);
    return bounds;
}

} // namespace qsymbol
