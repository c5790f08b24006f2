#include "support/text.h"

#include <windows.h>

namespace support {

std::string Narrow(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string result(static_cast<std::size_t>(length) * 3, '\0');
    const int used = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(),
                                         static_cast<int>(result.size()), nullptr, nullptr);
    result.resize(static_cast<std::size_t>(used));
    return result;
}

std::wstring Widen(const std::string& text) {
    std::wstring result(text.size(), L'\0');
    const int used = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                         result.data(), static_cast<int>(result.size()));
    result.resize(static_cast<std::size_t>(used));
    return result;
}

} // namespace support
