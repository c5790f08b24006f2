#pragma once

#include <string>
#include <string_view>

namespace platform {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "only where the system's wide texts are UTF-16");

/// The same UTF-16 units in the type that the system's functions take, and back.
inline const wchar_t* Wide(const char16_t* text) {
    return reinterpret_cast<const wchar_t*>(text);
}
inline wchar_t* Wide(char16_t* text) {
    return reinterpret_cast<wchar_t*>(text);
}
/// Ends with a zero.
inline const wchar_t* Wide(const std::u16string& text) {
    return Wide(text.c_str());
}
inline std::u16string_view Utf16(std::wstring_view text) {
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

} // namespace platform
