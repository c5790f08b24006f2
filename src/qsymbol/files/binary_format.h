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

/// Bytes of size and reference point.
inline constexpr std::size_t kSizesSize = 16;

/// Bytes of an element from its type to its fill colour.
inline constexpr std::size_t kFieldsSize = 38;
/// Bytes of a font ahead of its name, and behind it.
inline constexpr std::size_t kFontStart = 4;
inline constexpr std::size_t kFontEnd = 8;

} // namespace qsymbol::binary_format
