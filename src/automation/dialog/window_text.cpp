#include "automation/dialog/window_text.h"

#include "platform/wide/wide_text.h"

namespace dialog {

std::u16string WindowText(HWND window) {
    std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
    const int length = GetWindowTextW(window, platform::Wide(text.data()), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void SetWindowText(HWND window, const std::u16string& text) {
    ::SetWindowTextW(window, platform::Wide(text));
}

} // namespace dialog
