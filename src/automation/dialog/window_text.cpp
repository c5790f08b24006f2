#include "automation/dialog/window_text.h"

namespace dialog {

std::u16string WindowText(HWND window) {
    std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
    const int length =
        GetWindowTextW(window, reinterpret_cast<wchar_t*>(text.data()), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void SetWindowText(HWND window, const std::u16string& text) {
    ::SetWindowTextW(window, reinterpret_cast<const wchar_t*>(text.c_str()));
}

} // namespace dialog
