#include "status_bar.h"

#include "dialog_support.h"
#include "dpi.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// In pixels of a screen of 100 %.
constexpr int kWidths[] = {220, 150, 80}; // of the parts behind the first
constexpr int kLeastHeight = 18;          // inside of its borders
static_assert(std::size(kWidths) + 1 == StatusBar::Parts);

} // namespace

bool StatusBar::Create(HWND parent) {
    window_ = CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0,
                              parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    texts_.resize(Parts);
    return window_ != nullptr;
}

void StatusBar::Arrange(int width, UINT dots) {
    if (dots != dots_) {
        const HFONT before = std::exchange(font_, MakeMessageFont(dots));
        SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
        SendMessageW(window_, SB_SETMINHEIGHT, static_cast<WPARAM>(Scaled(kLeastHeight, dots)), 0);
        DeleteObject(before);
        dots_ = dots;
    }
    SendMessageW(window_, WM_SIZE, 0, 0);
    int ends[Parts];
    ends[Parts - 1] = -1;
    int end = width;
    for (std::size_t i = Parts - 1; i > 0; --i) {
        end = std::max(0, end - Scaled(kWidths[i - 1], dots));
        ends[i - 1] = end;
    }
    SendMessageW(window_, SB_SETPARTS, Parts, reinterpret_cast<LPARAM>(ends));
    texts_.assign(Parts, {});
}

int StatusBar::Height() const {
    RECT bar{};
    GetWindowRect(window_, &bar);
    return static_cast<int>(bar.bottom - bar.top);
}

void StatusBar::Show(Part part, const std::wstring& text) {
    if (texts_[part] == text)
        return;
    texts_[part] = text;
    SendMessageW(window_, SB_SETTEXTW, part, reinterpret_cast<LPARAM>(text.c_str()));
}
