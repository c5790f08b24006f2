#include "platform/win32/ansi_code_page.h"

#include "base/checked.h"

#include <windows.h>

namespace platform {

namespace {

bool IsAscii(std::string_view bytes) {
    for (const char byte : bytes)
        if (static_cast<unsigned char>(byte) >= 0x80)
            return false;
    return true;
}

} // namespace

std::string AnsiCodePage::Encode(std::u16string_view text) const {
    const auto* const source = reinterpret_cast<const wchar_t*>(text.data());
    const int length = base::Narrow<int>(text.size());
    const int needed = WideCharToMultiByte(CP_ACP, 0, source, length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, source, length, bytes.data(), needed, nullptr, nullptr);
    return bytes;
}

std::u16string AnsiCodePage::Decode(std::string_view bytes) const {
    if (IsAscii(bytes)) // the usual case; every ANSI code page agrees on it
        return std::u16string(bytes.begin(), bytes.end());
    const int length = base::Narrow<int>(bytes.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
    std::u16string text(static_cast<std::size_t>(needed), u'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, reinterpret_cast<wchar_t*>(text.data()), needed);
    return text;
}

} // namespace platform
