#pragma once

#include "base/error.h"

#include <bit>
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

/// The nearest whole number, exact halves to even, as a 64-bit integer; for a value outside the 32-bit range
/// and for what is not a number, some integer outside that range.
constexpr std::uint64_t RoundedBits(double value) {
    // Adding 1.5 * 2^52 rounds in the processor's mode (half to even) and leaves the whole number in the
    // low bits. The bits of doubles are ordered like their values, so what lies outside gives a
    // difference outside.
    constexpr double kShift = 6755399441055744.0;
    return std::bit_cast<std::uint64_t>(value + kShift) - std::bit_cast<std::uint64_t>(kShift);
}

/// Nearest integer, exact halves to even; error 6 outside the 32-bit range and for what is not a number.
constexpr std::int32_t RoundToLong(double value) {
    const std::uint64_t rounded = RoundedBits(value);
    if (rounded + 0x80000000U > 0xFFFFFFFFU)
        Raise(RunTimeError::Overflow);
    return static_cast<std::int32_t>(rounded);
}

/// RoundToLong into 16 bits.
inline std::int16_t RoundToInteger(double value) {
    return Narrow<std::int16_t>(RoundToLong(value));
}

} // namespace base
