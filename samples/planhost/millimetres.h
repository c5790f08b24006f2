#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Units in which the libraries and this host compute. A screen's pixel is many of them.
constexpr int kUnitsPerMillimetre = 100;

/// Larger lengths would leave the 32 bits of the library.
constexpr long kLongestMillimetres = 10'000'000;

/// A length as people write it: "1250", "-3,5" where the decimal point is a comma, with at most two decimals.
std::wstring MillimetresText(long units, wchar_t decimalPoint);

/// The units of such a text; nothing when it is none or longer than the longest. Blanks around are ignored.
std::optional<long> UnitsFromText(std::wstring_view text, wchar_t decimalPoint);
