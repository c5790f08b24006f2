#include "palette_window.h"

#include "../text.h"
#include "dpi.h"
#include "window_messages.h"

#include <commctrl.h>

#include <algorithm>

namespace {

constexpr wchar_t kClassName[] = L"PlanhostPalette";
// In pixels of a screen of 100 %.
constexpr int kWidth = 248;
constexpr int kMargin = 8;
constexpr int kFieldPadding = 5; // above and below a field's text
constexpr int kDropHeight = 400;

constexpr WORD kFilterId = 1;
constexpr WORD kCategoriesId = 2;

// What is remembered for the user.
constexpr wchar_t kFavourites[] = L"Favoriten";
constexpr wchar_t kRecent[] = L"Zuletzt benutzt";
constexpr std::size_t kMostRecent = 6;

void RegisterWindowClass(WNDPROC onMessage) {
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.lpfnWndProc = onMessage;
    form.hInstance = GetModuleHandleW(nullptr);
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    form.lpszClassName = kClassName;
    RegisterClassExW(&form);
}

std::wstring TextOf(HWND field) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(field, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::vector<PaletteSymbol> SymbolsOf(const std::vector<CatalogueEntry>& entries) {
    std::vector<PaletteSymbol> symbols;
    for (const CatalogueEntry& entry : entries)
        symbols.push_back({entry.name, entry.category, SizeText(entry)});
    return symbols;
}

} // namespace

PaletteWindow::PaletteWindow(HWND parent, PaletteHost& host) : host_(host), list_(model_, *this) {
    RegisterWindowClass(OnMessage);
    CreateWindowExW(WS_EX_CONTROLPARENT, kClassName, L"Palette", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0,
                    0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), this);
    if (window_ == nullptr)
        throw Failure{L"Die Palette lässt sich nicht öffnen."};
    CatalogueChanged();
}

PaletteWindow::~PaletteWindow() {
    if (window_ != nullptr)
        DestroyWindow(window_);
}

int PaletteWindow::Width(UINT dots) const {
    return Scaled(kWidth, dots);
}

void PaletteWindow::FocusFilter() {
    SetFocus(filter_);
    SendMessageW(filter_, EM_SETSEL, 0, -1);
}

void PaletteWindow::CatalogueChanged() {
    entries_ = EntriesOf(host_.Catalogue(), host_.CatalogueFolder());
    model_.SetSymbols(SymbolsOf(entries_));
    model_.SetFavourites(host_.Remembered().List(kFavourites));
    model_.SetRecent(host_.Remembered().List(kRecent));
    FillCategories();
    list_.SymbolsChanged();
    list_.ModelChanged(model_.IsFiltered());
}

void PaletteWindow::SymbolPlaced(const std::wstring& name) {
    host_.Remembered().PutFirst(kRecent, name, kMostRecent);
    ShowRemembered();
}

void PaletteWindow::ShowRemembered() {
    model_.SetFavourites(host_.Remembered().List(kFavourites));
    model_.SetRecent(host_.Remembered().List(kRecent));
    list_.SectionsChanged();
}

void PaletteWindow::Place(std::size_t number) {
    host_.BeginPlacing(entries_[number].name);
}

void PaletteWindow::Drag(std::size_t number) {
    host_.BeginDragging(entries_[number].name);
}

void PaletteWindow::ToggleFavourite(std::size_t number) {
    std::vector<std::wstring> names = host_.Remembered().List(kFavourites);
    if (std::erase(names, entries_[number].name) == 0)
        names.push_back(entries_[number].name);
    std::ranges::sort(names, ComesBefore);
    host_.Remembered().SetList(kFavourites, names);
    ShowRemembered();
}

/// Whoever types in the list looks for something.
void PaletteWindow::TypeOn(wchar_t letter) {
    FocusFilter();
    if (letter != 0)
        SendMessageW(filter_, WM_CHAR, letter, 1);
}

/// Esc: first the filter goes, then the keyboard goes back to the plan.
void PaletteWindow::Leave() {
    if (TextOf(filter_).empty())
        host_.FocusPlan();
    else
        SetWindowTextW(filter_, L"");
}

void PaletteWindow::FocusNext(bool backwards) {
    const HWND order[] = {filter_, categories_, list_.Window()};
    const auto here = std::ranges::find(order, GetFocus()) - order;
    const auto next = here + (backwards ? -1 : 1);
    if (next >= 0 && next < static_cast<std::ptrdiff_t>(std::size(order)))
        SetFocus(order[next]);
    else
        host_.FocusPlan();
}

void PaletteWindow::CreateParts() {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    const auto id = [](WORD number) { return reinterpret_cast<HMENU>(static_cast<INT_PTR>(number)); };
    filter_ = CreateWindowExW(0, WC_EDITW, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, 0, 0, 0,
                              0, window_, id(kFilterId), program, nullptr);
    SendMessageW(filter_, EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(L"Suchen (Strg+F)"));
    categories_ = CreateWindowExW(0, WC_COMBOBOXW, L"",
                                  WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWNLIST, 0, 0, 0,
                                  0, window_, id(kCategoriesId), program, nullptr);
    for (const HWND field : {filter_, categories_})
        SetWindowSubclass(field, OnFieldMessage, 0, reinterpret_cast<DWORD_PTR>(this));
    list_.Create(window_);
}

/// One below the other; fonts and pictures follow the screen.
void PaletteWindow::LayOut() {
    if (const UINT dots = DotsOf(window_); dots != dots_ || !look_) {
        auto look = std::make_unique<PaletteLook>(dots);
        for (const HWND field : {filter_, categories_})
            SendMessageW(field, WM_SETFONT, reinterpret_cast<WPARAM>(look->Font()), TRUE);
        list_.UseLook(*look);
        look_ = std::move(look);
        dots_ = dots;
    }
    RECT client{};
    GetClientRect(window_, &client);
    const int margin = look_->Pixels(kMargin);
    const int width = std::max(static_cast<int>(client.right) - 2 * margin, 0);
    const int padding = look_->Pixels(kFieldPadding);
    const int height = look_->LineHeight() + 2 * padding;
    // The field's frame is the strip's: a field of one line does not centre its text.
    frame_ = {margin, margin, margin + width, margin + height};
    MoveWindow(filter_, margin + padding, margin + padding, std::max(width - 2 * padding, 0),
               look_->LineHeight(), TRUE);
    MoveWindow(categories_, margin, 2 * margin + height, width, look_->Pixels(kDropHeight), TRUE);
    RECT shut{};
    GetWindowRect(categories_, &shut);
    const int top = 3 * margin + height + static_cast<int>(shut.bottom - shut.top);
    // A line of the strip's own stays at the right, between palette and plan.
    MoveWindow(list_.Window(), 0, top, std::max(static_cast<int>(client.right) - 1, 0),
               std::max(static_cast<int>(client.bottom) - top, 0), TRUE);
}

void PaletteWindow::FillCategories() {
    SendMessageW(categories_, CB_RESETCONTENT, 0, 0);
    const auto add = [&](const std::wstring& text) {
        SendMessageW(categories_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    };
    add(L"Alle Kategorien (" + std::to_wstring(entries_.size()) + L")");
    for (const std::wstring& category : model_.Categories()) {
        const auto count = std::ranges::count(entries_, category, &CatalogueEntry::category);
        add((category.empty() ? L"Ohne Kategorie" : category) + L" (" + std::to_wstring(count) + L")");
    }
    SendMessageW(categories_, CB_SETCURSEL, 0, 0);
    model_.SetCategory(std::nullopt);
}

void PaletteWindow::ChooseCategory() {
    const auto chosen = SendMessageW(categories_, CB_GETCURSEL, 0, 0);
    model_.SetCategory(chosen > 0 ? std::optional(model_.Categories()[static_cast<std::size_t>(chosen) - 1])
                                  : std::nullopt);
    list_.ModelChanged(model_.IsFiltered());
}

void PaletteWindow::Filter() {
    model_.SetFilter(TextOf(filter_));
    list_.ModelChanged(model_.IsFiltered());
}

LRESULT CALLBACK PaletteWindow::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Deliver(&PaletteWindow::window_, &PaletteWindow::Handle, window, message, wParam, lParam);
}

LRESULT PaletteWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE: CreateParts(); return 0;
    case WM_SIZE: LayOut(); return 0;
    case WM_SETFOCUS: SetFocus(filter_); return 0;
    case WM_MOUSEWHEEL: list_.OnWheel(GET_WHEEL_DELTA_WPARAM(wParam)); return 0;
    case WM_COMMAND:
        if (wParam == MAKEWPARAM(kFilterId, EN_CHANGE))
            Filter();
        else if (wParam == MAKEWPARAM(kFilterId, EN_SETFOCUS) ||
                 wParam == MAKEWPARAM(kFilterId, EN_KILLFOCUS))
            InvalidateRect(window_, &frame_, FALSE);
        else if (wParam == MAKEWPARAM(kCategoriesId, CBN_SELCHANGE))
            ChooseCategory();
        return 0;
    case WM_PAINT: Paint(); return 0;
    case WM_LBUTTONDOWN: SetFocus(filter_); return 0; // on its frame
    case WM_NCDESTROY: window_ = nullptr; return 0;
    default: return DefWindowProcW(window_, message, wParam, lParam);
    }
}

void PaletteWindow::Paint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window_, &paint);
    RECT line{};
    GetClientRect(window_, &line);
    line.left = line.right - 1;
    SetDCBrushColor(dc, PaletteLook::Line());
    FillRect(dc, &line, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    SetDCBrushColor(dc, GetFocus() == filter_ ? PaletteLook::Border() : PaletteLook::Frame());
    FrameRect(dc, &frame_, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    EndPaint(window_, &paint);
}

LRESULT CALLBACK PaletteWindow::OnFieldMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam,
                                               UINT_PTR, DWORD_PTR self) {
    auto& palette = *reinterpret_cast<PaletteWindow*>(self);
    switch (message) {
    case WM_KEYDOWN:
        if (palette.OnFieldKey(field, wParam))
            return 0;
        break;
    case WM_CHAR:
        if (wParam == L'\r' || wParam == L'\t' || wParam == L'\x1b')
            return 0; // done with the key; the field would beep
        break;
    case WM_MOUSEWHEEL:
        if (SendMessageW(palette.categories_, CB_GETDROPPEDSTATE, 0, 0) != 0)
            break;
        palette.list_.OnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
        return 0;
    case WM_NCDESTROY: RemoveWindowSubclass(field, OnFieldMessage, 0); break;
    default: break;
    }
    return DefSubclassProc(field, message, wParam, lParam);
}

/// The keys that lead from the fields into the list and to the plan. False for the field's own keys.
bool PaletteWindow::OnFieldKey(HWND field, WPARAM key) {
    const bool isFilter = field == filter_;
    if (SendMessageW(categories_, CB_GETDROPPEDSTATE, 0, 0) != 0)
        return false;
    switch (key) {
    case VK_TAB: FocusNext(GetKeyState(VK_SHIFT) < 0); return true;
    case VK_ESCAPE: Leave(); return true;
    case VK_RETURN:
        if (const std::optional<std::size_t> number = isFilter ? list_.Selected() : std::nullopt)
            Place(*number);
        return true;
    case VK_DOWN:
        if (!isFilter)
            return false;
        if (!list_.Selected())
            list_.SelectFirst();
        SetFocus(list_.Window());
        return true;
    case VK_PRIOR:
    case VK_NEXT:
        if (isFilter)
            SendMessageW(list_.Window(), WM_VSCROLL, key == VK_PRIOR ? SB_PAGEUP : SB_PAGEDOWN, 0);
        return isFilter;
    default: return false;
    }
}
