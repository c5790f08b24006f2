#include "palette_list.h"

#include "../text.h"
#include "window_messages.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr wchar_t kClassName[] = L"PlanhostPaletteList";
// In pixels of a screen of 100 %.
constexpr int kPicture = 76;
constexpr int kPadding = 6; // inside a tile
constexpr int kGap = 6;
constexpr int kTileWidth = 92;
constexpr int kHeadingPadding = 8;
constexpr int kStar = 6; // from its middle to its points

constexpr UINT_PTR kPictureTimer = 1;
constexpr DWORD kPictureTime = 15; // milliseconds for new pictures in one painting; the rest follows

enum MenuItem : UINT { MenuPlace = 1, MenuFavourite, MenuReload };

void RegisterWindowClass(WNDPROC onMessage) {
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.lpfnWndProc = onMessage;
    form.hInstance = GetModuleHandleW(nullptr);
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.lpszClassName = kClassName;
    RegisterClassExW(&form);
}

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

void PaletteList::Create(HWND parent) {
    RegisterWindowClass(OnMessage);
    CreateWindowExW(0, kClassName, L"Symbole", WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP, 0, 0, 0, 0,
                    parent, nullptr, GetModuleHandleW(nullptr), this);
}

void PaletteList::UseLook(const PaletteLook& look) {
    look_ = &look;
    thumbnails_.SetSide(look.Pixels(kPicture));
    Arrange();
}

void PaletteList::ModelChanged(bool selectFirst) {
    selected_.reset();
    hover_.reset();
    pressed_.reset();
    top_ = 0;
    Arrange();
    if (selectFirst)
        SelectFirst();
}

void PaletteList::SectionsChanged() {
    // What changes is at the top, so places stay the same from the end.
    const std::size_t before = layout_.Tiles();
    const int height = layout_.Height();
    Arrange();
    if (selected_) {
        const std::size_t fromEnd = before - *selected_;
        selected_ = layout_.Tiles() - std::min(fromEnd, layout_.Tiles());
    }
    if (top_ > 0)
        ScrollTo(top_ + layout_.Height() - height);
}

void PaletteList::SelectFirst() {
    if (layout_.Tiles() > 0)
        Select(0);
}

std::optional<std::size_t> PaletteList::Selected() const {
    return selected_ ? std::optional(NumberOf(*selected_)) : std::nullopt;
}

std::size_t PaletteList::NumberOf(std::size_t tile) const {
    const std::size_t section = layout_.SectionOf(tile);
    return model_.Sections()[section].symbols[tile - layout_.FirstOf(section)];
}

SIZE PaletteList::Size() const {
    RECT client{};
    GetClientRect(window_, &client);
    return {client.right, client.bottom};
}

RECT PaletteList::PlaceOf(std::size_t tile) const {
    const PalettePlace place = layout_.Tile(tile);
    return {place.left, place.top - top_, place.right, place.bottom - top_};
}

void PaletteList::Arrange() {
    if (look_ == nullptr || window_ == nullptr)
        return;
    std::vector<std::size_t> counts;
    for (const PaletteSection& section : model_.Sections())
        counts.push_back(section.symbols.size());
    const int texts = look_->LineHeight() + look_->SmallLineHeight();
    layout_ = PaletteLayout(counts, {.width = static_cast<int>(Size().cx),
                                     .tileWidth = look_->Pixels(kTileWidth),
                                     .tileHeight = look_->Pixels(kPicture + 3 * kPadding) + texts,
                                     .heading = look_->LineHeight() + 2 * look_->Pixels(kHeadingPadding),
                                     .gap = look_->Pixels(kGap)});
    ScrollTo(top_);
}

void PaletteList::ScrollTo(int top) {
    const int seen = static_cast<int>(Size().cy);
    top_ = std::clamp(top, 0, std::max(layout_.Height() - seen, 0));
    SCROLLINFO scroll{sizeof scroll,
                      SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL,
                      0,
                      std::max(layout_.Height() - 1, 0),
                      static_cast<UINT>(seen),
                      top_,
                      0};
    SetScrollInfo(window_, SB_VERT, &scroll, TRUE);
    InvalidateRect(window_, nullptr, FALSE);
}

void PaletteList::ScrollBy(int pixels) {
    ScrollTo(top_ + pixels);
    POINT mouse;
    GetCursorPos(&mouse);
    ScreenToClient(window_, &mouse);
    SetHover(TileAt(mouse));
}

void PaletteList::OnWheel(int delta) {
    constexpr int kLine = 36; // pixels; a notch of the wheel is three of them for most people
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int notch = lines == WHEEL_PAGESCROLL ? static_cast<int>(Size().cy)
                                                : static_cast<int>(lines) * look_->Pixels(kLine);
    wheelRest_ += -delta * notch;
    ScrollBy(wheelRest_ / WHEEL_DELTA);
    wheelRest_ %= WHEEL_DELTA;
}

void PaletteList::OnScroll(int code) {
    SCROLLINFO scroll{};
    scroll.cbSize = sizeof scroll;
    scroll.fMask = SIF_TRACKPOS;
    GetScrollInfo(window_, SB_VERT, &scroll);
    const int page = static_cast<int>(Size().cy) * 9 / 10;
    switch (code) {
    case SB_LINEUP: ScrollBy(-look_->Pixels(kPicture / 2)); break;
    case SB_LINEDOWN: ScrollBy(look_->Pixels(kPicture / 2)); break;
    case SB_PAGEUP: ScrollBy(-page); break;
    case SB_PAGEDOWN: ScrollBy(page); break;
    case SB_TOP: ScrollTo(0); break;
    case SB_BOTTOM: ScrollTo(layout_.Height()); break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: ScrollTo(scroll.nTrackPos); break;
    default: break;
    }
}

void PaletteList::Select(std::size_t tile) {
    selected_ = tile;
    const PalettePlace place = layout_.Tile(tile);
    const std::size_t section = layout_.SectionOf(tile);
    // The first row comes with its heading.
    const PalettePlace heading = layout_.Heading(section);
    const int gap = look_->Pixels(kGap);
    const int from = place.top == heading.bottom ? heading.top : place.top - gap;
    const int seen = static_cast<int>(Size().cy);
    if (from < top_)
        ScrollTo(from);
    else if (place.bottom + gap > top_ + seen)
        ScrollTo(place.bottom + gap - seen);
    InvalidateRect(window_, nullptr, FALSE);
}

void PaletteList::MoveSelection(std::size_t tile) {
    if (layout_.Tiles() > 0)
        Select(std::min(tile, layout_.Tiles() - 1));
}

/// False for a key that means nothing here.
bool PaletteList::OnKey(WPARAM key) {
    const std::size_t tile = selected_.value_or(0);
    const int rows = std::max(static_cast<int>(Size().cy) / std::max(look_->Pixels(kPicture) * 2, 1), 1);
    switch (key) {
    case VK_LEFT: MoveSelection(tile == 0 ? 0 : tile - 1); return true;
    case VK_RIGHT: MoveSelection(selected_ ? tile + 1 : 0); return true;
    case VK_UP:
        if (!selected_ || layout_.RowsBelow(tile, -1) == tile)
            owner_.TypeOn(0);
        else
            MoveSelection(layout_.RowsBelow(tile, -1));
        return true;
    case VK_DOWN: MoveSelection(selected_ ? layout_.RowsBelow(tile, 1) : 0); return true;
    case VK_PRIOR: MoveSelection(layout_.Tiles() > 0 ? layout_.RowsBelow(tile, -rows) : 0); return true;
    case VK_NEXT: MoveSelection(layout_.Tiles() > 0 ? layout_.RowsBelow(tile, rows) : 0); return true;
    case VK_HOME: MoveSelection(0); return true;
    case VK_END: MoveSelection(layout_.Tiles()); return true;
    case VK_RETURN:
        if (selected_)
            owner_.Place(NumberOf(tile));
        return true;
    case VK_ESCAPE: owner_.Leave(); return true;
    case VK_TAB: owner_.FocusNext(GetKeyState(VK_SHIFT) < 0); return true;
    default: return false;
    }
}

void PaletteList::OnMouseDown(POINT point) {
    SetFocus(window_);
    const std::optional<std::size_t> tile = TileAt(point);
    if (!tile)
        return;
    Select(*tile);
    pressed_ = point;
    SetCapture(window_);
}

void PaletteList::OnMouseMove(POINT point, bool isPressed) {
    if (pressed_ && isPressed) {
        if (std::abs(point.x - pressed_->x) <= GetSystemMetrics(SM_CXDRAG) &&
            std::abs(point.y - pressed_->y) <= GetSystemMetrics(SM_CYDRAG))
            return;
        pressed_.reset();
        ReleaseCapture();
        owner_.Drag(NumberOf(*selected_));
        return;
    }
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, window_, 0};
    TrackMouseEvent(&track);
    SetHover(TileAt(point));
}

void PaletteList::OnMouseUp(POINT) {
    if (!pressed_)
        return;
    pressed_.reset();
    ReleaseCapture();
    if (selected_)
        owner_.Place(NumberOf(*selected_));
}

void PaletteList::SetHover(std::optional<std::size_t> tile) {
    if (hover_ == tile)
        return;
    hover_ = tile;
    InvalidateRect(window_, nullptr, FALSE);
}

void PaletteList::ShowMenu(POINT screen, bool byKeyboard) {
    if (byKeyboard && selected_) {
        const RECT place = PlaceOf(*selected_);
        screen = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
        ClientToScreen(window_, &screen);
    } else if (!byKeyboard) {
        POINT point = screen;
        ScreenToClient(window_, &point);
        if (const std::optional<std::size_t> tile = TileAt(point))
            Select(*tile);
        else
            selected_.reset();
    }
    const std::optional<std::size_t> number = Selected();
    const UINT forSymbol = number ? MF_ENABLED : MF_GRAYED;
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, forSymbol, MenuPlace, L"&Setzen\tEingabe");
    AppendMenuW(menu, forSymbol | (number && model_.IsFavourite(*number) ? MF_CHECKED : 0U), MenuFavourite,
                L"&Favorit\tLeertaste");
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(menu, MF_STRING, MenuReload, L"Katalog &neu laden");
    SetMenuDefaultItem(menu, MenuPlace, FALSE);
    const int chosen =
        TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, 0, window_, nullptr);
    DestroyMenu(menu);
    InvalidateRect(window_, nullptr, FALSE);
    if (chosen == MenuPlace && number)
        owner_.Place(*number);
    else if (chosen == MenuFavourite && number)
        owner_.ToggleFavourite(*number);
    else if (chosen == MenuReload)
        owner_.Reload();
}

LRESULT CALLBACK PaletteList::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Deliver(&PaletteList::window_, &PaletteList::Handle, window, message, wParam, lParam);
}

LRESULT PaletteList::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
    case WM_SIZE: Arrange(); return 0;
    case WM_ERASEBKGND: return 1; // the picture covers everything
    case WM_PAINT: {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(window_, &paint);
        try {
            Paint(dc);
        } catch (const Failure&) {
            // No memory for a picture: the next painting tries again.
        }
        EndPaint(window_, &paint);
        return 0;
    }
    case WM_TIMER:
        KillTimer(window_, kPictureTimer);
        InvalidateRect(window_, nullptr, FALSE);
        return 0;
    case WM_VSCROLL: OnScroll(LOWORD(wParam)); return 0;
    case WM_MOUSEWHEEL: OnWheel(GET_WHEEL_DELTA_WPARAM(wParam)); return 0;
    case WM_LBUTTONDOWN: OnMouseDown(point); return 0;
    case WM_MOUSEMOVE: OnMouseMove(point, (wParam & MK_LBUTTON) != 0); return 0;
    case WM_LBUTTONUP: OnMouseUp(point); return 0;
    case WM_CAPTURECHANGED: pressed_.reset(); return 0;
    case WM_MOUSELEAVE: SetHover(std::nullopt); return 0;
    case WM_CONTEXTMENU: ShowMenu(point, lParam == -1); return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: InvalidateRect(window_, nullptr, FALSE); return 0;
    case WM_KEYDOWN: return OnKey(wParam) ? 0 : DefWindowProcW(window_, message, wParam, lParam);
    case WM_CHAR:
        if (wParam == L' ' && selected_)
            owner_.ToggleFavourite(NumberOf(*selected_));
        else if (wParam > L' ')
            owner_.TypeOn(static_cast<wchar_t>(wParam));
        return 0;
    default: return DefWindowProcW(window_, message, wParam, lParam);
    }
}

void PaletteList::Paint(HDC target) {
    const auto [width, height] = Size();
    if (look_ == nullptr || width <= 0 || height <= 0)
        return;
    if (!buffer_ || buffer_->Width() != width || buffer_->Height() != height)
        buffer_ = std::make_unique<Bitmap>(static_cast<int>(width), static_cast<int>(height));
    const HDC dc = buffer_->Dc();
    Fill(dc, {0, 0, width, height}, PaletteLook::Paper());
    if (layout_.Tiles() == 0)
        DrawNothingFound(dc);
    for (std::size_t section = 0; section < layout_.Sections(); ++section)
        DrawHeading(dc, section);
    const DWORD start = GetTickCount();
    bool isComplete = true;
    const auto [first, last] = layout_.Between(top_, top_ + static_cast<int>(height));
    for (std::size_t tile = first; tile < last; ++tile) {
        const bool mayMakePicture = GetTickCount() - start < kPictureTime;
        isComplete = isComplete && (mayMakePicture || thumbnails_.Has(NumberOf(tile)));
        DrawTile(dc, tile, mayMakePicture);
    }
    BitBlt(target, 0, 0, width, height, dc, 0, 0, SRCCOPY);
    if (!isComplete)
        SetTimer(window_, kPictureTimer, USER_TIMER_MINIMUM, nullptr);
}

void PaletteList::DrawHeading(HDC dc, std::size_t section) const {
    const PalettePlace place = layout_.Heading(section);
    if (place.bottom <= top_ || place.top >= top_ + Size().cy)
        return;
    const PaletteSection& shown = model_.Sections()[section];
    const int side = look_->Pixels(kGap + 2);
    const RECT line{side, place.top - top_ + look_->Pixels(kHeadingPadding), place.right - side,
                    place.bottom - top_ - look_->Pixels(kHeadingPadding / 2)};
    const std::wstring count = std::to_wstring(shown.symbols.size());
    Write(dc, count, line, look_->Small(), PaletteLook::Faint(), DT_RIGHT | DT_VCENTER);
    Write(dc, shown.title, {line.left, line.top, line.right - look_->Pixels(40), line.bottom}, look_->Bold(),
          PaletteLook::Text(), DT_LEFT | DT_VCENTER);
}

void PaletteList::DrawTile(HDC dc, std::size_t tile, bool mayMakePicture) {
    const RECT place = PlaceOf(tile);
    const std::size_t number = NumberOf(tile);
    const PaletteSymbol& symbol = model_.Symbol(number);
    const bool isSelected = selected_ == tile;
    if (isSelected)
        FillRounded(dc, place, look_->Pixels(8), PaletteLook::Selected(),
                    GetFocus() == window_ ? PaletteLook::Border() : PaletteLook::Selected());
    else if (hover_ == tile)
        FillRounded(dc, place, look_->Pixels(8), PaletteLook::Hover(), PaletteLook::Hover());

    const int padding = look_->Pixels(kPadding);
    const int side = thumbnails_.Side();
    const POINT picture{(place.left + place.right - side) / 2, place.top + padding};
    // Paper under the symbol, which is drawn for paper.
    const RECT paper{place.left + padding, picture.y, place.right - padding, picture.y + side};
    FillRounded(dc, paper, look_->Pixels(4), RGB(255, 255, 255),
                isSelected || hover_ == tile ? RGB(255, 255, 255) : PaletteLook::Line());
    if (mayMakePicture || thumbnails_.Has(number)) {
        const int clip = SaveDC(dc);
        IntersectClipRect(dc, paper.left + 1, paper.top + 1, paper.right - 1, paper.bottom - 1);
        thumbnails_.Draw(dc, picture, number, owner_.SymbolOf(number));
        RestoreDC(dc, clip);
    }
    if (model_.IsFavourite(number))
        DrawStar(dc, paper);
    const int nameTop = paper.bottom + padding / 2;
    const int sizeTop = nameTop + look_->LineHeight();
    Write(dc, symbol.name, {place.left + 2, nameTop, place.right - 2, sizeTop}, look_->Font(),
          PaletteLook::Text(), DT_CENTER);
    Write(dc, symbol.size, {place.left + 2, sizeTop, place.right - 2, sizeTop + look_->SmallLineHeight()},
          look_->Small(), PaletteLook::Faint(), DT_CENTER);
}

/// A star in the corner of the symbol's paper.
void PaletteList::DrawStar(HDC dc, const RECT& paper) const {
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

void PaletteList::DrawNothingFound(HDC dc) const {
    const auto [width, height] = Size();
    const int line = look_->LineHeight();
    const LONG top = std::min<LONG>(height / 4, look_->Pixels(120));
    const LONG side = look_->Pixels(kGap);
    Write(dc, L"Nichts gefunden", {side, top, width - side, top + line}, look_->Bold(), PaletteLook::Text(),
          DT_CENTER);
    Write(dc, L"Esc zeigt wieder alle Symbole", {side, top + 2 * line, width - side, top + 3 * line},
          look_->Font(), PaletteLook::Faint(), DT_CENTER);
}
