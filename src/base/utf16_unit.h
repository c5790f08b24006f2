#pragma once

namespace base {

/// The first half of a character that takes two units of UTF-16.
constexpr bool IsHighSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}

/// The second half.
constexpr bool IsLowSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xDC00;
}

constexpr bool IsSurrogate(char16_t unit) {
    return IsHighSurrogate(unit) || IsLowSurrogate(unit);
}

/// A control character: those of ASCII, DEL, and those between DEL and U+00A0.
constexpr bool IsControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

} // namespace base
