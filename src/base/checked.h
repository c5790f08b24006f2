#pragma once

#include "base/error.h"

#include <cstdint>

/// 32-bit arithmetic that raises error 6 where it would leave the range.
namespace base {

/// The value as a narrower integer; error 6 when it does not fit.
template <class To, class From>
constexpr To Narrow(From value) {
    const To narrowed = static_cast<To>(value);
    if (static_cast<From>(narrowed) != value || (narrowed < To{}) != (value < From{}))
        Raise(RunTimeError::Overflow);
    return narrowed;
}

constexpr std::int32_t CheckedAdd(std::int32_t a, std::int32_t b) {
    return Narrow<std::int32_t>(std::int64_t{a} + b);
}

constexpr std::int32_t CheckedSub(std::int32_t a, std::int32_t b) {
    return Narrow<std::int32_t>(std::int64_t{a} - b);
}

/// Nearest integer, exact halves to even; error 6 outside the 32-bit range and for what is not a number.
constexpr std::int32_t RoundToLong(double value) {
    // Adding and taking away 1.5 * 2^52 leaves the integer part, rounded in the processor's mode (half to
    // even).
    constexpr double kShift = 6755399441055744.0;
    if (!(value >= -2147483649.0 && value <= 2147483648.0))
        Raise(RunTimeError::Overflow);
    const double rounded = (value + kShift) - kShift;
    if (rounded < -2147483648.0 || rounded > 2147483647.0)
        Raise(RunTimeError::Overflow);
    return static_cast<std::int32_t>(rounded);
}

/// RoundToLong into 16 bits.
inline std::int16_t RoundToInteger(double value) {
    return Narrow<std::int16_t>(RoundToLong(value));
}

} // namespace base
