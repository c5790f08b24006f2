#pragma once

#include "qmath/point.h"

#include <cstdint>
#include <limits>
#include <numbers>

namespace qmath {

inline constexpr double kPi = std::numbers::pi;
inline constexpr double kTwoPi = 2 * kPi;
inline constexpr std::int32_t kMaxLong = std::numeric_limits<std::int32_t>::max();

/// Not brought into one turn.
constexpr double RadToDeg(double radians) {
    return radians * 180.0 / kPi;
}
constexpr double DegToRad(double degrees) {
    return degrees * kPi / 180.0;
}

/// The same direction in [0, 2π). Error 5 for what is not a finite number.
double NormalizeAngle(double radians);

/// Direction of the vector in [0, 2π), 0 for the zero vector. Error 5 for what is not a number.
double VectorAngle(double dx, double dy);

double Distance(Point a, Point b);

/// Turns (x, y) to (x·cos − y·sin, x·sin + y·cos) of the angle in radians, as Matrix::Rotate does.
void RotatePoint(double& x, double& y, double radians);

} // namespace qmath
