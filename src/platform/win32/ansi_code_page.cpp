#include "platform/win32/ansi_code_page.h"

#include "base/checked.h"
#include "base/utf16_unit.h"
#include "platform/wide/wide_text.h"

#include <windows.h>

#include <algorithm>

namespace platform {

namespace {

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool IsAscii(std::u16string_view text) {
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
}

/// Every character of two units as one that no code page of single characters has: it is replaced once.
std::u16string WithoutPairs(std::u16string_view text) {
    std::u16string single;
    for (const char16_t unit : text) {
        const bool second =
            base::IsLowSurrogate(unit) && !single.empty() && base::IsHighSurrogate(single.back());
        if (second)
            single.back() = u'\uFFFD';
        else
            single += unit;
    }
    return single;
}

/// "≤" must not become "=", nor "√" "v": without best fit. UTF-8 has every character and allows no such wish.
std::string Encoded(std::u16string_view text, DWORD flags, const char* replacement) {
    const wchar_t* const source = Wide(text.data());
    const int length = base::Narrow<int>(text.size());
    const int needed = WideCharToMultiByte(CP_ACP, flags, source, length, nullptr, 0, replacement, nullptr);
    std::string bytes(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, flags, source, length, bytes.data(), needed, replacement, nullptr);
    return bytes;
}

} // namespace

std::string AnsiCodePage::Encode(std::u16string_view text) const {
    if (IsAscii(text)) // the usual case; every ANSI code page agrees on it
        return std::string(text.begin(), text.end());
    return GetACP() == CP_UTF8 ? Encoded(text, 0, nullptr)
                               : Encoded(WithoutPairs(text), WC_NO_BEST_FIT_CHARS, "?");
}

std::u16string AnsiCodePage::Decode(std::string_view bytes) const {
    if (IsAscii(bytes))
        return std::u16string(bytes.begin(), bytes.end());
    const int length = base::Narrow<int>(bytes.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
    std::u16string text(static_cast<std::size_t>(needed), u'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, Wide(text.data()), needed);
    return text;
}

} // namespace platform
