#pragma once

#include <string>

namespace support {

/// UTF-16 as UTF-8, for output.
std::string Narrow(const std::wstring& text);

/// UTF-8 as UTF-16.
std::wstring Widen(const std::string& text);

} // namespace support
