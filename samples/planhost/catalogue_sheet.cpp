#include "catalogue_sheet.h"

#include "bitmap.h"
#include "picture_box.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// All in pixels.
constexpr int kColumns = 10;
constexpr int kCellWidth = 200;
constexpr int kCellHeight = 216;
constexpr int kGap = 8;       // between cells, and between a cell's frame and its symbol
constexpr int kBorder = 6;    // round the picture box
constexpr int kBoxSide = 168; // the largest picture box; two lines of text stay below it
constexpr COLORREF kPaper = RGB(238, 239, 242);
constexpr COLORREF kFrame = RGB(190, 192, 198);
constexpr COLORREF kNameColour = RGB(30, 30, 34);
constexpr COLORREF kSizeColour = RGB(110, 112, 118);

struct Entry {
    std::wstring name;
    Ptr<_CSymbol> symbol;
    LONG width = 0;
    LONG height = 0;
};

std::vector<Entry> SortedEntries(_CSymbolColl& catalogue) {
    LONG count = 0;
    Check(catalogue.get_Count(&count));
    std::vector<Entry> entries(count);
    for (LONG i = 0; i < count; ++i) {
        Entry& entry = entries[i];
        Bstr name;
        Check(catalogue.get_ItemByPos(i + 1, entry.symbol.Put()));
        Check(entry.symbol->get_Name(name.Put()));
        Check(entry.symbol->get_Width(&entry.width));
        Check(entry.symbol->get_Height(&entry.height));
        entry.name = name.Text();
    }
    // German order: umlauts stand with their vowels.
    const LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
    std::sort(entries.begin(), entries.end(), [german](const Entry& a, const Entry& b) {
        return CompareStringW(german, NORM_IGNORECASE, a.name.c_str(), -1, b.name.c_str(), -1) ==
               CSTR_LESS_THAN;
    });
    return entries;
}

/// The largest box of the symbol's shape: the library fits a symbol from the left top of the box, so that a
/// box without spare room can be centred.
SIZE BoxSize(const Entry& entry) {
    const double scale = static_cast<double>(kBoxSide) / std::max({entry.width, entry.height, 1L});
    return {std::max(1L, std::lround(entry.width * scale)), std::max(1L, std::lround(entry.height * scale))};
}

/// Draws the symbol into a picture box of its own and copies that into the middle of a place on the sheet.
void DrawSymbol(const Entry& entry, HDC sheet, int left, int top) {
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

void WriteCentred(HDC dc, const std::wstring& text, int x, int y, int height, COLORREF colour) {
    const HFONT font = CreateFontW(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                                   ANTIALIASED_QUALITY, 0, L"Arial");
    const HGDIOBJ previous = SelectObject(dc, font);
    SetTextColor(dc, colour);
    SetBkMode(dc, TRANSPARENT);
    SetTextAlign(dc, TA_CENTER | TA_TOP);
    TextOutW(dc, x, y, text.c_str(), static_cast<int>(text.size()));
    SelectObject(dc, previous);
    DeleteObject(font);
}

void DrawCell(const Entry& entry, HDC dc, int left, int top) {
    const int middle = left + kCellWidth / 2;
    const std::wstring size = std::to_wstring(entry.width / kUnitsPerMillimetre) + L" × " +
                              std::to_wstring(entry.height / kUnitsPerMillimetre) + L" mm";
    DrawFrame(dc, {left, top, left + kCellWidth, top + kCellHeight});
    DrawSymbol(entry, dc, middle - kBoxSide / 2, top + kGap);
    WriteCentred(dc, entry.name, middle, top + kGap + kBoxSide + 3, 15, kNameColour);
    WriteCentred(dc, size, middle, top + kGap + kBoxSide + 21, 12, kSizeColour);
}

} // namespace

void DrawCatalogueSheet(_CSymbolColl& catalogue, const std::filesystem::path& picture) {
    const std::vector<Entry> entries = SortedEntries(catalogue);
    const int rows = static_cast<int>(entries.size() + kColumns - 1) / kColumns;
    const Bitmap sheet(kColumns * (kCellWidth + kGap) + kGap, rows * (kCellHeight + kGap) + kGap);
    const RECT whole{0, 0, sheet.Width(), sheet.Height()};
    const HBRUSH paper = CreateSolidBrush(kPaper);
    FillRect(sheet.Dc(), &whole, paper);
    DeleteObject(paper);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const int column = static_cast<int>(i) % kColumns;
        const int row = static_cast<int>(i) / kColumns;
        DrawCell(entries[i], sheet.Dc(), kGap + column * (kCellWidth + kGap),
                 kGap + row * (kCellHeight + kGap));
    }
    sheet.SavePng(picture.wstring());
}
