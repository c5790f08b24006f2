#include "plan_drawing.h"

#include "wall_outline.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr COLORREF kWallColour = RGB(74, 74, 78);
constexpr COLORREF kTextColour = RGB(40, 40, 44);
// Millimetres in the plan.
constexpr int kLabelHeight = 230;
constexpr int kTitleHeight = 340;
constexpr int kTitleMargin = 700;

void DrawFloors(const Plan& plan, const Canvas& canvas) {
    for (const Floor& floor : plan.floors) {
        const POINT leftTop = ToPixel(canvas, floor.area.left, floor.area.top);
        const POINT rightBottom = ToPixel(canvas, floor.area.right, floor.area.bottom);
        const RECT area{leftTop.x, leftTop.y, rightBottom.x, rightBottom.y};
        const HBRUSH brush = CreateSolidBrush(floor.colour);
        FillRect(canvas.dc, &area, brush);
        DeleteObject(brush);
    }
}

void DrawWalls(const Plan& plan, const Canvas& canvas) {
    const HDC dc = canvas.dc;
    const int state = SaveDC(dc);
    SelectObject(dc, GetStockObject(DC_PEN));
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SetDCPenColor(dc, kWallColour);
    SetDCBrushColor(dc, kWallColour);
    for (const Wall& wall : plan.walls) {
        POINT corners[4];
        std::ranges::transform(Outline(wall), corners,
                               [&](const Position& corner) { return ToPixel(canvas, corner.x, corner.y); });
        Polygon(dc, corners, 4);
    }
    RestoreDC(dc, state);
}

void WriteText(const Canvas& canvas, const std::wstring& text, POINT at, int height, UINT align) {
    const HDC dc = canvas.dc;
    const int state = SaveDC(dc);
    LONG pixels = height * kUnitsPerMillimetre;
    Check(canvas.transformation.LengthToScreen(&pixels));
    const HFONT font = CreateFontW(-pixels, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                                   ANTIALIASED_QUALITY, 0, L"Arial");
    SelectObject(dc, font);
    SetTextColor(dc, kTextColour);
    SetBkMode(dc, TRANSPARENT);
    SetTextAlign(dc, align | TA_BASELINE);
    const POINT anchor = ToPixel(canvas, at.x, at.y);
    TextOutW(dc, anchor.x, anchor.y, text.c_str(), static_cast<int>(text.size()));
    RestoreDC(dc, state);
    DeleteObject(font);
}

} // namespace

POINT ToPixel(const Canvas& canvas, double x, double y) {
    POINT point{std::lround(x * kUnitsPerMillimetre), std::lround(y * kUnitsPerMillimetre)};
    Check(canvas.transformation.WorldToScreen(&point.x, &point.y));
    return point;
}

void DrawBelowSymbols(const Canvas& canvas, const Plan& plan) {
    DrawFloors(plan, canvas);
    DrawWalls(plan, canvas);
}

void DrawAboveSymbols(const Canvas& canvas, const Plan& plan) {
    WriteText(canvas, plan.title, {kTitleMargin, kTitleMargin - kTitleHeight / 2}, kTitleHeight, TA_LEFT);
    for (const Room& room : plan.rooms) {
        // Capitals are about two thirds of the height: this puts them round the middle.
        const POINT baseline{room.middle.x, room.middle.y + kLabelHeight / 3};
        WriteText(canvas, room.name, baseline, kLabelHeight, TA_CENTER);
    }
}
