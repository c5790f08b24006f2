#include "palette_painter.h"

#include "../text.h"

#include <algorithm>
#include <cmath>

namespace {

// In pixels of a screen of 100 %.
constexpr int kPicture = 76;
constexpr int kPadding = 6; // inside a tile
constexpr int kGap = 6;
constexpr int kTileWidth = 92;
constexpr int kHeadingPadding = 8;
constexpr int kStar = 6; // from its middle to its points

constexpr DWORD kPictureTime = 15; // milliseconds for new pictures in one painting; the rest follows

void Write(HDC dc, const std::wstring& text, RECT place, HFONT font, COLORREF colour, UINT format) {
    const HGDIOBJ previous = SelectObject(dc, font);
    SetTextColor(dc, colour);
    SetBkMode(dc, TRANSPARENT);
    DrawTextW(dc, text.c_str(), -1, &place, format | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(dc, previous);
}

void Fill(HDC dc, const RECT& place, COLORREF colour) {
    SetDCBrushColor(dc, colour);
    FillRect(dc, &place, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

/// A filled rectangle with a border and round corners.
void FillRounded(HDC dc, const RECT& place, int corner, COLORREF fill, COLORREF border) {
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SelectObject(dc, GetStockObject(DC_PEN));
    SetDCBrushColor(dc, fill);
    SetDCPenColor(dc, border);
    RoundRect(dc, place.left, place.top, place.right, place.bottom, corner, corner);
}

} // namespace

void PalettePainter::UseLook(const PaletteLook& look) {
    look_ = &look;
    thumbnails_.SetSide(look.Pixels(kPicture));
}

PaletteMeasures PalettePainter::Measures(int width) const {
    const int texts = look_->LineHeight() + look_->SmallLineHeight();
    return {.width = width,
            .tileWidth = look_->Pixels(kTileWidth),
            .tileHeight = look_->Pixels(kPicture + 3 * kPadding) + texts,
            .heading = look_->LineHeight() + 2 * look_->Pixels(kHeadingPadding),
            .gap = look_->Pixels(kGap)};
}

bool PalettePainter::Paint(HDC target, const PaletteView& view) {
    const auto [width, height] = view.size;
    if (look_ == nullptr || width <= 0 || height <= 0)
        return true;
    if (!buffer_ || buffer_->Width() != width || buffer_->Height() != height)
        buffer_ = std::make_unique<Bitmap>(static_cast<int>(width), static_cast<int>(height));
    const HDC dc = buffer_->Dc();
    Fill(dc, {0, 0, width, height}, PaletteLook::Paper());
    if (view.layout.Tiles() == 0)
        DrawNothingFound(dc, view.size);
    for (std::size_t section = 0; section < view.layout.Sections(); ++section)
        DrawHeading(dc, view, section);
    const DWORD start = GetTickCount();
    bool isComplete = true;
    const auto [first, last] = view.layout.Between(view.top, view.top + static_cast<int>(height));
    for (std::size_t tile = first; tile < last; ++tile) {
        const bool mayMakePicture = GetTickCount() - start < kPictureTime;
        isComplete = isComplete && (mayMakePicture || thumbnails_.Has(view.SymbolOn(tile)));
        DrawTile(dc, view, tile, mayMakePicture);
    }
    BitBlt(target, 0, 0, width, height, dc, 0, 0, SRCCOPY);
    return isComplete;
}

void PalettePainter::DrawHeading(HDC dc, const PaletteView& view, std::size_t section) const {
    const PalettePlace place = view.layout.Heading(section);
    if (place.bottom <= view.top || place.top >= view.top + view.size.cy)
        return;
    const PaletteSection& shown = view.model.Sections()[section];
    const int side = look_->Pixels(kGap + 2);
    const RECT line{side, place.top - view.top + look_->Pixels(kHeadingPadding), place.right - side,
                    place.bottom - view.top - look_->Pixels(kHeadingPadding / 2)};
    const std::wstring count = std::to_wstring(shown.symbols.size());
    Write(dc, count, line, look_->Small(), PaletteLook::Faint(), DT_RIGHT | DT_VCENTER);
    Write(dc, shown.title, {line.left, line.top, line.right - look_->Pixels(40), line.bottom}, look_->Bold(),
          PaletteLook::Text(), DT_LEFT | DT_VCENTER);
}

void PalettePainter::DrawTile(HDC dc, const PaletteView& view, std::size_t tile, bool mayMakePicture) {
    const RECT place = view.PlaceOf(tile);
    const std::size_t number = view.SymbolOn(tile);
    const PaletteSymbol& symbol = view.model.Symbol(number);
    const bool isSelected = view.selected == tile;
    if (isSelected)
        FillRounded(dc, place, look_->Pixels(8), PaletteLook::Selected(),
                    view.hasFocus ? PaletteLook::Border() : PaletteLook::Selected());
    else if (view.hover == tile)
        FillRounded(dc, place, look_->Pixels(8), PaletteLook::Hover(), PaletteLook::Hover());

    const int padding = look_->Pixels(kPadding);
    const int side = thumbnails_.Side();
    const POINT picture{(place.left + place.right - side) / 2, place.top + padding};
    // Paper under the symbol, which is drawn for paper.
    const RECT paper{place.left + padding, picture.y, place.right - padding, picture.y + side};
    FillRounded(dc, paper, look_->Pixels(4), RGB(255, 255, 255),
                isSelected || view.hover == tile ? RGB(255, 255, 255) : PaletteLook::Line());
    if (mayMakePicture || thumbnails_.Has(number)) {
        const int clip = SaveDC(dc);
        IntersectClipRect(dc, paper.left + 1, paper.top + 1, paper.right - 1, paper.bottom - 1);
        thumbnails_.Draw(dc, picture, number, symbolOf_(number));
        RestoreDC(dc, clip);
    }
    if (view.model.IsFavourite(number))
        DrawStar(dc, paper);
    const int nameTop = paper.bottom + padding / 2;
    const int sizeTop = nameTop + look_->LineHeight();
    Write(dc, symbol.name, {place.left + 2, nameTop, place.right - 2, sizeTop}, look_->Font(),
          PaletteLook::Text(), DT_CENTER);
    Write(dc, symbol.size, {place.left + 2, sizeTop, place.right - 2, sizeTop + look_->SmallLineHeight()},
          look_->Small(), PaletteLook::Faint(), DT_CENTER);
}

/// A star in the corner of the symbol's paper.
void PalettePainter::DrawStar(HDC dc, const RECT& paper) const {
    constexpr int kPoints = 10;
    constexpr double kPi = 3.14159265358979323846;
    const double outer = look_->Pixels(kStar);
    const double x = paper.right - outer - look_->Pixels(3);
    const double y = paper.top + outer + look_->Pixels(3);
    POINT points[kPoints];
    for (int i = 0; i < kPoints; ++i) {
        const double radius = i % 2 == 0 ? outer : outer * 0.45;
        const double angle = kPi * i / 5 - kPi / 2;
        points[i] = {std::lround(x + radius * std::cos(angle)), std::lround(y + radius * std::sin(angle))};
    }
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SelectObject(dc, GetStockObject(DC_PEN));
    SetDCBrushColor(dc, PaletteLook::Star());
    SetDCPenColor(dc, PaletteLook::Star());
    Polygon(dc, points, kPoints);
}

void PalettePainter::DrawNothingFound(HDC dc, SIZE size) const {
    const auto [width, height] = size;
    const int line = look_->LineHeight();
    const LONG top = std::min<LONG>(height / 4, look_->Pixels(120));
    const LONG side = look_->Pixels(kGap);
    Write(dc, L"Nichts gefunden", {side, top, width - side, top + line}, look_->Bold(), PaletteLook::Text(),
          DT_CENTER);
    Write(dc, L"Esc zeigt wieder alle Symbole", {side, top + 2 * line, width - side, top + 3 * line},
          look_->Font(), PaletteLook::Faint(), DT_CENTER);
}
