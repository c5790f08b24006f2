#include "qmath/transform.h"

#include <algorithm>
#include <cmath>

namespace qmath {

namespace {

constexpr double kMillimetresToAPoint = 25.4 / 72;

} // namespace

void Transform::SetScale(double scale) {
    if (!(std::isfinite(scale) && scale > 0))
        base::Raise(base::RunTimeError::InvalidCall);
    scale_ = scale;
}

void Transform::WorldToScreen(std::span<Point> points) const {
    for (Point& point : points)
        point = WorldToScreen(point);
}

std::int32_t Transform::FontSizeToScreen(double factor, std::int16_t size) const {
    return std::max(1, base::RoundToLong(size * kMillimetresToAPoint * factor / scale_));
}

} // namespace qmath
