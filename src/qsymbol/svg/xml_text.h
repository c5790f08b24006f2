#pragma once

#include <string>
#include <string_view>

namespace qsymbol {

/// Appends text as UTF-8 character data that may stand in an element and in an attribute: markup is escaped,
/// what XML cannot hold (control characters, lone surrogates, U+FFFE and U+FFFF) is dropped.
void AppendXmlText(std::string& out, std::u16string_view text);

/// The same as a string.
std::string XmlText(std::u16string_view text);

} // namespace qsymbol
