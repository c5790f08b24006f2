#pragma once

#include <string>
#include <string_view>

namespace support {

/// What keeps a text from being well-formed XML without document types, "" when nothing does.
std::string XmlFault(std::string_view text);

/// False for bytes that are no UTF-8.
bool IsUtf8(std::string_view text);

} // namespace support
