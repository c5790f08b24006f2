#include "dialog/dialog_fixture.h"

#include <algorithm>

namespace dialog {

namespace {

constexpr std::uint32_t kWhitePixel = 0xFFFFFF;

BOOL CALLBACK FindMessageBox(HWND window, LPARAM found) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    const bool isBox = std::wstring(name) == L"#32770" && !SelectionDialog::Is(window);
    if (isBox)
        *reinterpret_cast<HWND*>(found) = window;
    return isBox ? FALSE : TRUE;
}

} // namespace

HWND OwnerOfMessageBox() {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindMessageBox, reinterpret_cast<LPARAM>(&box));
    return GetWindow(box, GW_OWNER);
}

void DialogTest::Add(const std::vector<std::wstring>& names) {
    for (const std::wstring& name : names)
        Add(name, 2000, 1000,
            {{.type = symPoly,
              .points = {{0, 0}, {2000, 0}, {2000, 1000}, {0, 1000}},
              .closed = true,
              .mainColor = kRed}});
}

void DialogTest::Add(const std::wstring& name, LONG width, LONG height,
                     const std::vector<support::ElementSpec>& elements) {
    Ref<_CSymbol> symbol = support::NewSymbol(0, 0, width, height, elements);
    EXPECT_OK(symbol->put_FilePath(support::Bstr(L"C:\\Katalog\\" + name + L".syb")));
    EXPECT_OK(catalogue->AppendRef(symbol.InOut()));
}

Ref<ForeignSymbol> DialogTest::AddForeign(const std::wstring& name, LONG width, LONG height) {
    const Ref<ForeignSymbol> symbol = ForeignSymbol::Create(name, width, height);
    Ref<_CSymbol> handedOver(symbol.Get());
    EXPECT_OK(catalogue->AppendRef(handedOver.InOut()));
    return symbol;
}

std::wstring DialogTest::Choose(const std::wstring& oldName) const {
    support::Bstr name(L"unset");
    EXPECT_OK(catalogue->SelectSymNameDlg(support::Bstr(oldName), name.Put()));
    return name.Text();
}

SIZE PreviewSize(const SelectionDialog& dialog) {
    RECT area{};
    GetClientRect(dialog.Control(support::kPreview), &area);
    return {area.right, area.bottom};
}

void PaintPreview(const SelectionDialog& dialog, support::Canvas& canvas) {
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_STATIC;
    item.CtlID = support::kPreview;
    item.itemAction = ODA_DRAWENTIRE;
    item.hwndItem = dialog.Control(support::kPreview);
    item.hDC = canvas.Dc();
    item.rcItem = {0, 0, canvas.Width(), canvas.Height()};
    SendMessageW(dialog.Window(), WM_DRAWITEM, support::kPreview, reinterpret_cast<LPARAM>(&item));
}

RECT Drawn(const support::Canvas& preview) {
    const std::vector<std::uint32_t> pixels = preview.Pixels();
    RECT drawn{preview.Width(), preview.Height(), 0, 0};
    for (LONG y = 1; y < preview.Height() - 1; ++y)
        for (LONG x = 1; x < preview.Width() - 1; ++x) {
            if (pixels[static_cast<std::size_t>(y * preview.Width() + x)] == kWhitePixel)
                continue;
            drawn = {std::min(drawn.left, x), std::min(drawn.top, y), std::max(drawn.right, x + 1),
                     std::max(drawn.bottom, y + 1)};
        }
    return drawn.right == 0 ? RECT{} : drawn;
}

} // namespace dialog
