#include "plan_picture.h"

#include "bitmap.h"
#include "picture_box.h"
#include "plan_symbols.h"
#include "text.h"
#include "wall_outline.h"

#include <QMath.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr COLORREF kWallColour = RGB(74, 74, 78);
constexpr COLORREF kTextColour = RGB(40, 40, 44);
constexpr LONG kMarkColour = RGB(226, 74, 20);
constexpr LONG kOwnColours = -1;
constexpr int kLargestPixelHeight = 20000;
// Millimetres in the plan.
constexpr int kLabelHeight = 230;
constexpr int kTitleHeight = 340;
constexpr int kTitleMargin = 700;

/// The sheet in world units and its picture; the libraries and the host share the transformation.
struct Sheet {
    Bitmap bitmap;
    Ptr<_CTrans> transformation;

    POINT ToPixel(double x, double y) const {
        POINT point{std::lround(x * kUnitsPerMillimetre), std::lround(y * kUnitsPerMillimetre)};
        Check(transformation->WorldToScreen(&point.x, &point.y));
        return point;
    }
};

Sheet MakeSheet(const Plan& plan, int pixelWidth) {
    const double unitsPerPixel = static_cast<double>(plan.width) * kUnitsPerMillimetre / pixelWidth;
    Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(unitsPerPixel));
    const double pixelHeight = std::round(plan.height * kUnitsPerMillimetre / unitsPerPixel);
    if (pixelHeight < 1 || pixelHeight > kLargestPixelHeight)
        throw Failure{L"Das Blatt ist für ein Bild dieser Breite zu flach oder zu hoch."};
    return {Bitmap(pixelWidth, static_cast<int>(pixelHeight)), std::move(transformation)};
}

void DrawFloors(const Plan& plan, const Sheet& sheet) {
    for (const Floor& floor : plan.floors) {
        const POINT leftTop = sheet.ToPixel(floor.area.left, floor.area.top);
        const POINT rightBottom = sheet.ToPixel(floor.area.right, floor.area.bottom);
        const RECT area{leftTop.x, leftTop.y, rightBottom.x, rightBottom.y};
        const HBRUSH brush = CreateSolidBrush(floor.colour);
        FillRect(sheet.bitmap.Dc(), &area, brush);
        DeleteObject(brush);
    }
}

void DrawWalls(const Plan& plan, const Sheet& sheet) {
    const HDC dc = sheet.bitmap.Dc();
    const int state = SaveDC(dc);
    SelectObject(dc, GetStockObject(DC_PEN));
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SetDCPenColor(dc, kWallColour);
    SetDCBrushColor(dc, kWallColour);
    for (const Wall& wall : plan.walls) {
        POINT corners[4];
        std::ranges::transform(Outline(wall), corners,
                               [&](const Position& corner) { return sheet.ToPixel(corner.x, corner.y); });
        Polygon(dc, corners, 4);
    }
    RestoreDC(dc, state);
}

/// marked: the places of symbols in the plan that are drawn in the mark colour.
void DrawSymbols(const Plan& plan, const std::vector<Ptr<_CSymbol>>& symbols,
                 const std::vector<std::size_t>& marked, const Sheet& sheet) {
    const Ptr<PictureBox> box =
        PictureBox::Create(sheet.bitmap.Dc(), sheet.bitmap.Width(), sheet.bitmap.Height(), L"PlanBox");
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        const PlacedSymbol& placed = plan.symbols[i];
        const bool isMarked = std::find(marked.begin(), marked.end(), i) != marked.end();
        LONG markColour = isMarked ? kMarkColour : kOwnColours;
        Check(symbols[i]->Draw(placed.at.x * kUnitsPerMillimetre, placed.at.y * kUnitsPerMillimetre,
                               Radians(placed), box.Get(), sheet.transformation.Get(), 1.0, 1.0, &markColour),
              L"Zeile " + std::to_wstring(placed.line));
    }
}

void WriteText(const Sheet& sheet, const std::wstring& text, POINT at, int height, UINT align) {
    const HDC dc = sheet.bitmap.Dc();
    const int state = SaveDC(dc);
    LONG pixels = height * kUnitsPerMillimetre;
    Check(sheet.transformation->LengthToScreen(&pixels));
    const HFONT font = CreateFontW(-pixels, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                                   ANTIALIASED_QUALITY, 0, L"Arial");
    SelectObject(dc, font);
    SetTextColor(dc, kTextColour);
    SetBkMode(dc, TRANSPARENT);
    SetTextAlign(dc, align | TA_BASELINE);
    const POINT anchor = sheet.ToPixel(at.x, at.y);
    TextOutW(dc, anchor.x, anchor.y, text.c_str(), static_cast<int>(text.size()));
    RestoreDC(dc, state);
    DeleteObject(font);
}

void WriteTitleAndLabels(const Plan& plan, const Sheet& sheet) {
    WriteText(sheet, plan.title, {kTitleMargin, kTitleMargin - kTitleHeight / 2}, kTitleHeight, TA_LEFT);
    for (const Room& room : plan.rooms) {
        // Capitals are about two thirds of the height: this puts them round the middle.
        const POINT baseline{room.middle.x, room.middle.y + kLabelHeight / 3};
        WriteText(sheet, room.name, baseline, kLabelHeight, TA_CENTER);
    }
}

void DrawSheet(const Plan& plan, const std::vector<Ptr<_CSymbol>>& symbols,
               const std::vector<std::size_t>& marked, const Sheet& sheet) {
    DrawFloors(plan, sheet);
    DrawWalls(plan, sheet);
    DrawSymbols(plan, symbols, marked, sheet);
    WriteTitleAndLabels(plan, sheet);
}

} // namespace

void DrawPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
              const std::filesystem::path& picture) {
    const std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan, catalogue);
    const Sheet sheet = MakeSheet(plan, pixelWidth);
    DrawSheet(plan, symbols, {}, sheet);
    sheet.bitmap.SavePng(picture.wstring());
}

std::vector<std::wstring> MarkPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
                                   const PointedAt& place, const std::filesystem::path& picture) {
    const std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan, catalogue);
    const Sheet sheet = MakeSheet(plan, pixelWidth);
    const std::vector<std::size_t> marked = SymbolsAt(place, plan, symbols, *sheet.transformation.Get());
    DrawSheet(plan, symbols, marked, sheet);
    sheet.bitmap.SavePng(picture.wstring());
    std::vector<std::wstring> names;
    for (const std::size_t i : marked)
        names.push_back(plan.symbols[i].name);
    return names;
}
