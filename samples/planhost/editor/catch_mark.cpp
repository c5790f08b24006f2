#include "catch_mark.h"

#include "dialog_support.h"
#include "dpi.h"

#include <cwchar>

namespace {

constexpr COLORREF kColour = RGB(0, 128, 60);
// In pixels of a screen of 100 %.
constexpr int kHalf = 5;
constexpr int kLine = 2;

} // namespace

void DrawCatchMark(HDC dc, int width, POINT pixel, const wchar_t* kind, UINT dots) {
    const int state = SaveDC(dc);
    const HPEN pen = CreatePen(PS_SOLID, Scaled(kLine, dots), kColour);
    const HFONT font = MakeMessageFont(dots);
    SelectObject(dc, pen);
    SelectObject(dc, GetStockObject(NULL_BRUSH));
    const int half = Scaled(kHalf, dots);
    Rectangle(dc, pixel.x - half, pixel.y - half, pixel.x + half + 1, pixel.y + half + 1);
    SelectObject(dc, font);
    SetTextColor(dc, kColour);
    SetBkColor(dc, RGB(255, 255, 255));
    const auto length = static_cast<int>(std::wcslen(kind));
    SIZE text{};
    GetTextExtentPoint32W(dc, kind, length, &text);
    // At the right of the mark, unless the picture ends there.
    const bool hasRoom = pixel.x + 2 * half + text.cx <= width;
    TextOutW(dc, hasRoom ? pixel.x + 2 * half : pixel.x - 2 * half - text.cx, pixel.y + half, kind, length);
    RestoreDC(dc, state);
    DeleteObject(pen);
    DeleteObject(font);
}
