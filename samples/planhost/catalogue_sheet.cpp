#include "catalogue_sheet.h"

#include "bitmap.h"
#include "catalogue_entries.h"
#include "picture_box.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace {

// All in pixels.
constexpr int kColumns = 12;
constexpr int kCellWidth = 200;
constexpr int kCellHeight = 216;
constexpr int kHeadingHeight = 56;
constexpr int kGap = 8;       // between cells, and between a cell's frame and its symbol
constexpr int kBorder = 6;    // round the picture box
constexpr int kBoxSide = 168; // the largest picture box; two lines of text stay below it
constexpr COLORREF kPaper = RGB(238, 239, 242);
constexpr COLORREF kFrame = RGB(190, 192, 198);
constexpr COLORREF kNameColour = RGB(30, 30, 34);
constexpr COLORREF kSizeColour = RGB(110, 112, 118);

/// The largest box of the symbol's shape: the library fits a symbol from the left top of the box, so that a
/// box without spare room can be centred.
SIZE BoxSize(const CatalogueEntry& entry) {
    const double scale = static_cast<double>(kBoxSide) / std::max({entry.width, entry.height, 1L});
    return {std::max(1L, std::lround(entry.width * scale)), std::max(1L, std::lround(entry.height * scale))};
}

/// Draws the symbol into a picture box of its own and copies that into the middle of a place on the sheet.
void DrawSymbol(const CatalogueEntry& entry, HDC sheet, int left, int top) {
    const SIZE size = BoxSize(entry);
    // A border round the box takes the outer halves of lines that run along the symbol's edge.
    const Bitmap bitmap(size.cx + 2 * kBorder, size.cy + 2 * kBorder);
    SetViewportOrgEx(bitmap.Dc(), kBorder, kBorder, nullptr);
    const Ptr<PictureBox> box = PictureBox::Create(bitmap.Dc(), size.cx, size.cy, L"SymbolBox");
    Check(entry.symbol->Draw2PBox(box.Get()), entry.name);
    BitBlt(sheet, left + (kBoxSide - size.cx) / 2 - kBorder, top + (kBoxSide - size.cy) / 2 - kBorder,
           bitmap.Width(), bitmap.Height(), bitmap.Dc(), -kBorder, -kBorder, SRCCOPY);
}

void DrawFrame(HDC dc, const RECT& cell) {
    SelectObject(dc, GetStockObject(DC_PEN));
    SetDCPenColor(dc, kFrame);
    SelectObject(dc, GetStockObject(WHITE_BRUSH));
    Rectangle(dc, cell.left, cell.top, cell.right, cell.bottom);
}

/// align: flags of SetTextAlign; height: of the font, in pixels.
void Write(HDC dc, const std::wstring& text, POINT at, UINT align, int height, COLORREF colour,
           int weight = FW_NORMAL) {
    const HFONT font = CreateFontW(-height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                                   ANTIALIASED_QUALITY, 0, L"Arial");
    const HGDIOBJ previous = SelectObject(dc, font);
    SetTextColor(dc, colour);
    SetBkMode(dc, TRANSPARENT);
    SetTextAlign(dc, align);
    TextOutW(dc, at.x, at.y, text.c_str(), static_cast<int>(text.size()));
    SelectObject(dc, previous);
    DeleteObject(font);
}

void DrawCell(const CatalogueEntry& entry, HDC dc, int left, int top) {
    const int middle = left + kCellWidth / 2;
    DrawFrame(dc, {left, top, left + kCellWidth, top + kCellHeight});
    DrawSymbol(entry, dc, middle - kBoxSide / 2, top + kGap);
    Write(dc, entry.name, {middle, top + kGap + kBoxSide + 3}, TA_CENTER | TA_TOP, 15, kNameColour);
    Write(dc, SizeText(entry), {middle, top + kGap + kBoxSide + 21}, TA_CENTER | TA_TOP, 12, kSizeColour);
}

/// The category's name and how many symbols it has.
void DrawHeading(HDC dc, const std::wstring& category, std::ptrdiff_t count, int top) {
    const std::wstring text = category.empty() ? L"Ohne Kategorie" : category;
    Write(dc, text + L"   " + std::to_wstring(count), {kGap, top + kHeadingHeight - 2 * kGap},
          TA_LEFT | TA_BASELINE, 24, kNameColour, FW_BOLD);
}

/// Draws the cells in rows and returns where the last row ends. Without a device context it only computes that.
int DrawCells(std::span<const CatalogueEntry> entries, HDC dc, int top) {
    int column = 0;
    for (const CatalogueEntry& entry : entries) {
        if (column == kColumns) {
            column = 0;
            top += kCellHeight + kGap;
        }
        if (dc != nullptr)
            DrawCell(entry, dc, kGap + column * (kCellWidth + kGap), top);
        ++column;
    }
    return top + kCellHeight + kGap;
}

/// The same for all categories. Symbols without any get no heading.
int DrawCategories(std::span<const CatalogueEntry> entries, HDC dc) {
    const bool hasHeadings = !entries.empty() && !entries.back().category.empty();
    int top = kGap;
    while (!entries.empty()) {
        const auto count = std::ranges::count(entries, entries.front().category, &CatalogueEntry::category);
        if (hasHeadings) {
            if (dc != nullptr)
                DrawHeading(dc, entries.front().category, count, top);
            top += kHeadingHeight;
        }
        top = DrawCells(entries.first(count), dc, top);
        entries = entries.subspan(count);
    }
    return top;
}

} // namespace

void DrawCatalogueSheet(_CSymbolColl& symbols, const std::filesystem::path& folder,
                        const std::filesystem::path& picture) {
    const std::vector<CatalogueEntry> entries = EntriesOf(symbols, folder);
    const Bitmap sheet(kColumns * (kCellWidth + kGap) + kGap, DrawCategories(entries, nullptr));
    const RECT whole{0, 0, sheet.Width(), sheet.Height()};
    const HBRUSH paper = CreateSolidBrush(kPaper);
    FillRect(sheet.Dc(), &whole, paper);
    DeleteObject(paper);
    DrawCategories(entries, sheet.Dc());
    sheet.SavePng(picture.wstring());
}
