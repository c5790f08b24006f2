#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What reader and writer of the binary format share. Integers are little-endian, nothing is padded.
namespace qsymbol::binary_format {

/// Every file begins with this tag as a counted string.
inline constexpr std::string_view kTag = "SYM";

/// Booleans are 16 bits wide: all set for true, none for false. Any bit set reads as true.
inline constexpr std::uint16_t kTrue = 0xFFFF;

/// Bytes of a point: x, then y.
inline constexpr std::size_t kPointSize = 8;

} // namespace qsymbol::binary_format
