#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace base {

/// The number that eight digits in one word make, the first in the lowest byte; nothing else may be in it.
inline std::int64_t ValueOfDigits(std::uint64_t word) {
    // Neighbours become numbers up to 99, the four of them are weighted and added by two multiplications.
    const std::uint64_t digits = word - 0x3030303030303030U;
    const std::uint64_t pairs = digits * 10 + (digits >> 8);
    constexpr std::uint64_t kPair = 0x000000FF000000FFU;
    constexpr std::uint64_t kOuter = (1000000ULL << 32) + 100;
    constexpr std::uint64_t kInner = (10000ULL << 32) + 1;
    return static_cast<std::int64_t>(((pairs & kPair) * kOuter + ((pairs >> 16) & kPair) * kInner) >> 32);
}

/// How many digits the eight bytes at `at` begin with, and the number that these make (0 for none).
inline std::size_t LeadingDigits(const char* at, std::int64_t& value) {
    static_assert(std::endian::native == std::endian::little);
    constexpr std::uint64_t kZeros = 0x3030303030303030U;
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    // A byte keeps its upper half in both sums only when it is a digit; what follows the first other one may
    // be wrong, for a sum may carry into the next byte.
    const std::uint64_t others = ((word & (word + 0x0606060606060606U)) & 0xF0F0F0F0F0F0F0F0U) ^ kZeros;
    const std::size_t count = others == 0 ? 8 : static_cast<std::size_t>(std::countr_zero(others)) / 8;
    const std::size_t missing = 8 * (8 - count);
    value = count == 0 ? 0 : ValueOfDigits(missing == 0 ? word : word << missing | kZeros >> (64 - missing));
    return count;
}

/// The value of one to eight digits; -1 when anything else is among them, or when there are none or more.
///
/// All digits are checked and converted at once in one 64-bit word, so the time does not depend on
/// their number.
inline std::int64_t DigitsValue(const char* at, std::size_t count) {
    static_assert(std::endian::native == std::endian::little);
    constexpr std::uint64_t kZeros = 0x3030303030303030U;
    if (count < 1 || count > 8)
        return -1;
    // The digits stand at the upper end of the word, behind as many zeros as are missing.
    const std::size_t missing = 8 * (8 - count);
    std::uint64_t word = 0;
    if (count >= 4) {
        std::uint32_t first = 0;
        std::uint32_t last = 0;
        std::memcpy(&first, at, 4);
        std::memcpy(&last, at + count - 4, 4);
        word = std::uint64_t{last} << 32 | std::uint64_t{first} << missing;
    } else {
        const auto byte = [at](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(at[i])}; };
        word = byte(0) << missing | byte(count / 2) << (missing + 8 * (count / 2)) | byte(count - 1) << 56;
    }
    if (missing != 0)
        word |= kZeros >> (64 - missing);
    if (((word & (word + 0x0606060606060606U)) & 0xF0F0F0F0F0F0F0F0U) != kZeros)
        return -1;
    return ValueOfDigits(word);
}

} // namespace base
