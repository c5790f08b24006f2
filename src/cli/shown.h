#pragma once

#include <string>
#include <string_view>

namespace cli {

/// A name or a text as a line of a screen shows it, in UTF-8: a control character would break the line or command the
/// terminal, and becomes "?".
std::string Shown(std::u16string_view text);

} // namespace cli
