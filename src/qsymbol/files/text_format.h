#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What reader and writer of the text format share: record types and keys, upper case as they stand in a
/// file.
namespace qsymbol::text_format {

inline constexpr char kSeparator = ';';
inline constexpr std::string_view kHeader = "SYM";
inline constexpr std::string_view kPoly = "POLY";
inline constexpr std::string_view kCircle = "CIRCLE";
inline constexpr std::string_view kArc = "ARC";
inline constexpr std::string_view kText = "TEXT";
inline constexpr std::string_view kPoint = "POINT";
inline constexpr std::string_view kString = "STRING";
inline constexpr std::string_view kTrue = "TRUE";
inline constexpr std::string_view kFalse = "FALSE";

inline constexpr std::size_t kHeaderFields = 6;
inline constexpr std::size_t kHeaderKeys = 5;
inline constexpr std::size_t kKeyLength = 3;

/// A three-letter key as one number, for a switch; 0 for anything shorter.
constexpr std::uint32_t Key(std::string_view field) {
    if (field.size() < kKeyLength)
        return 0;
    const auto byte = [&](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(field[i])}; };
    return byte(0) << 16 | byte(1) << 8 | byte(2);
}

/// What follows the key and one more character, whichever that is.
constexpr std::string_view Value(std::string_view field) {
    return field.size() > kKeyLength + 1 ? field.substr(kKeyLength + 1) : std::string_view();
}

} // namespace qsymbol::text_format
