#include "catch_mark.h"

#include <cwchar>

namespace {

constexpr COLORREF kColour = RGB(0, 128, 60);
constexpr int kHalf = 5; // pixels

} // namespace

void DrawCatchMark(HDC dc, POINT pixel, const wchar_t* kind) {
    const int state = SaveDC(dc);
    const HPEN pen = CreatePen(PS_SOLID, 2, kColour);
    SelectObject(dc, pen);
    SelectObject(dc, GetStockObject(NULL_BRUSH));
    Rectangle(dc, pixel.x - kHalf, pixel.y - kHalf, pixel.x + kHalf + 1, pixel.y + kHalf + 1);
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    SetTextColor(dc, kColour);
    SetBkColor(dc, RGB(255, 255, 255));
    TextOutW(dc, pixel.x + 2 * kHalf, pixel.y + kHalf, kind, static_cast<int>(std::wcslen(kind)));
    RestoreDC(dc, state);
    DeleteObject(pen);
}
