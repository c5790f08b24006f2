#include "dialog_support.h"

#include "dpi.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

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

    const LOGFONTW message = MessageFont(DotsOf(nullptr));
    const auto points =
        static_cast<WORD>(MulDiv(std::abs(message.lfHeight), 72, static_cast<int>(DotsOf(nullptr))));
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

LOGFONTW MessageFont(UINT dots) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW font = metrics.lfMessageFont;
    font.lfHeight = MulDiv(font.lfHeight, static_cast<int>(dots), static_cast<int>(DotsOf(nullptr)));
    return font;
}

HFONT MakeMessageFont(UINT dots) {
    const LOGFONTW font = MessageFont(dots);
    return CreateFontIndirectW(&font);
}

int LineHeightOf(HFONT font) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(dc, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, previous);
    DeleteDC(dc);
    return static_cast<int>(metrics.tmHeight);
}

std::wstring WindowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}
