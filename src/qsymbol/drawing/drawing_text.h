#pragma once

#include <string>
#include <string_view>

namespace qsymbol {

/// A text as the value of a tag in a file of code page 1252: control characters in caret form (`^J`), a caret
/// as "^ ", what lies outside Latin-1 as `\U+XXXX`, one unit of UTF-16 at a time.
std::string DrawingText(std::u16string_view text);

/// The same for a text that is shown: percent signs that a reader would take for a code (%%d) are written so
/// that they stand for themselves.
std::string ShownDrawingText(std::u16string_view text);

/// The name with "_" for characters that no name of a block, layer or style may have, cut to 200 characters;
/// "_" for an empty one.
std::u16string LegalDxfName(std::u16string_view name);

} // namespace qsymbol
