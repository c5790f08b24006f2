#pragma once

#include "qsymbol/files/three_letters.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

/// What reader and writer of the text format share: record types and keys, upper case as they stand in
/// a file.
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
inline constexpr std::size_t kArcPoints = 3;

/// True for a first line that makes a file a symbol.
inline bool IsHeader(std::string_view line) {
    const auto separators = static_cast<std::size_t>(std::count(line.begin(), line.end(), kSeparator));
    return line.starts_with(kHeader) && line.substr(kHeader.size()).starts_with(kSeparator) &&
           separators + 1 == kHeaderFields;
}

/// What follows the key and one more character, whichever that is.
constexpr std::string_view Value(std::string_view field) {
    return field.size() > kKeyLength + 1 ? field.substr(kKeyLength + 1) : std::string_view();
}

} // namespace qsymbol::text_format
