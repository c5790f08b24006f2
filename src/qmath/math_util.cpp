#include "qmath/math_util.h"

#include "base/error.h"

#include <cmath>

namespace qmath {

double NormalizeAngle(double radians) {
    if (!std::isfinite(radians))
        base::Raise(base::RunTimeError::InvalidCall);
    constexpr double kTurn = 2 * kPi;
    double angle = std::fmod(radians, kTurn);
    if (angle < 0)
        angle += kTurn;
    // A tiny negative angle has just become the full turn itself; adding 0 takes the sign off a zero.
    return angle < kTurn ? angle + 0.0 : 0.0;
}

double VectorAngle(double dx, double dy) {
    if (dx == 0 && dy == 0)
        return 0;
    return NormalizeAngle(std::atan2(dy, dx));
}

double Distance(Point a, Point b) {
    return std::hypot(static_cast<double>(a.x) - b.x, static_cast<double>(a.y) - b.y);
}

void RotatePoint(double& x, double& y, double radians) {
    const double sine = std::sin(radians);
    const double cosine = std::cos(radians);
    const double turnedX = x * cosine - y * sine;
    y = x * sine + y * cosine;
    x = turnedX;
}

} // namespace qmath
