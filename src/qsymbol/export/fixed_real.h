#pragma once

#include <charconv>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace qsymbol {

/// Longest text of PutFixedReal: a sign, ten digits before the separator, the separator, fourteen behind it.
inline constexpr std::size_t kLongestFixedReal = 1 + 10 + 1 + 14;

/// Writes value / 100000 with fourteen decimals and "." to `out`; returns the end. |value| is below 10^15.
///
/// Such a number has at most 15 digits and is a decimal one, so whole numbers give every digit that
/// base::AppendDecimals finds in its double, at a fraction of the cost.
inline char* PutFixedReal(char* out, std::int64_t value) {
    constexpr std::uint64_t kUnit = 100000;
    constexpr std::string_view kPadding = "000000000";
    auto magnitude = static_cast<std::uint64_t>(value);
    if (value < 0) {
        *out++ = '-';
        magnitude = 0 - magnitude;
    }
    out = std::to_chars(out, out + 10, magnitude / kUnit).ptr;
    *out = '.';
    // Five divisions that do not wait for one another.
    const auto decimals = static_cast<std::uint32_t>(magnitude % kUnit);
    out[1] = static_cast<char>('0' + decimals / 10000);
    out[2] = static_cast<char>('0' + decimals / 1000 % 10);
    out[3] = static_cast<char>('0' + decimals / 100 % 10);
    out[4] = static_cast<char>('0' + decimals / 10 % 10);
    out[5] = static_cast<char>('0' + decimals % 10);
    std::memcpy(out + 6, kPadding.data(), kPadding.size());
    return out + 6 + kPadding.size();
}

} // namespace qsymbol
