#pragma once

#include "qmath/point.h"

#include <cstdint>

/// The turn from one way to another, exact for all 32-bit points.
namespace qmath {

/// The way from one point to another: up to 32 bits and a sign.
struct Way {
    std::int64_t x;
    std::int64_t y;
};

constexpr Way Between(Point from, Point to) {
    return {std::int64_t{to.x} - from.x, std::int64_t{to.y} - from.y};
}

constexpr int Sign(std::int64_t value) {
    return (value > 0) - (value < 0);
}

namespace detail {

/// True when the way fits 31 bits and a sign; the cross product of two such ways fits 64 bits.
constexpr bool IsShort(Way way) {
    constexpr std::uint64_t kReach = 0x80000000U;
    const std::uint64_t x = static_cast<std::uint64_t>(way.x) + kReach;
    const std::uint64_t y = static_cast<std::uint64_t>(way.y) + kReach;
    return (x | y) >> 32 == 0;
}

constexpr std::uint64_t Magnitude(std::int64_t value) {
    return static_cast<std::uint64_t>(value < 0 ? -value : value);
}

/// For ways whose products need 64 bits and a sign: compares the parts.
constexpr int CrossSign(Way a, Way b) {
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

} // namespace detail

/// A number with the sign of a.x · b.y − a.y · b.x: positive when b lies clockwise of a, y growing downwards.
constexpr std::int64_t Cross(Way a, Way b) {
    return detail::IsShort(a) && detail::IsShort(b) ? a.x * b.y - a.y * b.x : detail::CrossSign(a, b);
}

} // namespace qmath
