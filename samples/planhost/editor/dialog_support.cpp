#include "dialog_support.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

LOGFONTW MessageFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics.lfMessageFont;
}

/// Of the screen for which the system tells its sizes.
int SystemDots() {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dots;
}

/// A dialog template of the resources with another font. Its head: 26 bytes, menu and class (a word each here), the title,
/// and then the font: points, weight, two bytes, name.
std::vector<BYTE> WithMessageFont(int dialog) {
    const HRSRC place = FindResourceW(nullptr, MAKEINTRESOURCEW(dialog), RT_DIALOG);
    const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(nullptr, place)));
    const std::size_t size = SizeofResource(nullptr, place);
    const auto afterText = [bytes](std::size_t at) {
        while (bytes[at] != 0 || bytes[at + 1] != 0)
            at += 2;
        return at + 2;
    };
    const std::size_t font = afterText(26 + 2 + 2);
    const auto whole = [](std::size_t at) { return (at + 3) / 4 * 4; }; // controls begin at multiples of four
    const std::size_t controls = whole(afterText(font + 6));

    const LOGFONTW message = MessageFont();
    const auto points = static_cast<WORD>(MulDiv(std::abs(message.lfHeight), 72, SystemDots()));
    std::vector<BYTE> result(bytes, bytes + font + 6);
    std::memcpy(&result[font], &points, sizeof points);
    const auto* name = reinterpret_cast<const BYTE*>(message.lfFaceName);
    result.insert(result.end(), name, name + (lstrlenW(message.lfFaceName) + 1) * sizeof(wchar_t));
    result.resize(whole(result.size()));
    result.insert(result.end(), bytes + controls, bytes + size);
    return result;
}

} // namespace

INT_PTR ShowDialog(HWND owner, int dialog, DLGPROC onMessage, void* start) {
    const std::vector<BYTE> form = WithMessageFont(dialog);
    return DialogBoxIndirectParamW(GetModuleHandleW(nullptr),
                                   reinterpret_cast<const DLGTEMPLATE*>(form.data()), owner, onMessage,
                                   reinterpret_cast<LPARAM>(start));
}

void CentreOverOwner(HWND dialog) {
    const HWND owner = GetWindow(dialog, GW_OWNER);
    RECT area, below;
    GetWindowRect(dialog, &area);
    GetWindowRect(owner, &below);
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &screen);
    const LONG width = area.right - area.left;
    const LONG height = area.bottom - area.top;
    const auto within = [](LONG place, LONG first, LONG last) {
        return std::max(first, std::min(place, last));
    };
    SetWindowPos(
        dialog, nullptr,
        within((below.left + below.right - width) / 2, screen.rcWork.left, screen.rcWork.right - width),
        within((below.top + below.bottom - height) / 2, screen.rcWork.top, screen.rcWork.bottom - height), 0,
        0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HFONT MakeMessageFont(UINT dots) {
    LOGFONTW form = MessageFont();
    form.lfHeight = MulDiv(form.lfHeight, static_cast<int>(dots), SystemDots());
    return CreateFontIndirectW(&form);
}

std::wstring WindowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}
