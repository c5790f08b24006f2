#pragma once

#include <cstdint>
#include <string_view>

/// Fields of a line and parts of a path. All results are views into the argument.
namespace qmath {

/// Number of fields: separators plus one, so an empty text has one empty field.
///
/// The separator may have several characters; with an empty one the whole text is the only field.
std::int32_t TokenCount(std::u16string_view text, std::u16string_view separator);

/// Field number index, counted from 1; "" when there is no such field.
std::u16string_view GetToken(std::u16string_view text, std::u16string_view separator, std::int32_t index);

/// What follows the last "\", "/" or ":"; the whole path without any of them.
std::u16string_view FileNamePart(std::u16string_view path);

/// A file name up to its last dot; the whole name without one.
std::u16string_view NameWithoutExtension(std::u16string_view fileName);

/// What follows the last dot of the path's file name; "" without one.
std::u16string_view GetExtension(std::u16string_view path);

} // namespace qmath
