#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cli {

/// A name or a text as a line of a screen shows it, in UTF-8: a control character would break the line or command the
/// terminal, and becomes "?".
std::string Shown(std::u16string_view text);

/// "1 file", "2 files".
std::string Counted(std::size_t number, std::string_view noun);

} // namespace cli
