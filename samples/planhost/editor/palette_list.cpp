#include "palette_list.h"

#include "../text.h"
#include "window_messages.h"

#include <windowsx.h>

#include <algorithm>

namespace {

constexpr wchar_t kClassName[] = L"PlanhostPaletteList";
constexpr UINT_PTR kPictureTimer = 1;

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

} // namespace

PaletteList::PaletteList(const PaletteModel& model, PaletteListOwner& owner)
    : model_(model), owner_(owner),
      painter_([&owner](std::size_t number) -> _CSymbol& { return owner.SymbolOf(number); }),
      accessible_(PaletteAccessible::Create(*this)) {}

void PaletteList::Create(HWND parent) {
    RegisterWindowClass(OnMessage);
    CreateWindowExW(0, kClassName, L"Symbole", WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP, 0, 0, 0, 0,
                    parent, nullptr, GetModuleHandleW(nullptr), this);
}

void PaletteList::UseLook(const PaletteLook& look) {
    look_ = &look;
    painter_.UseLook(look);
    Arrange();
}

void PaletteList::ModelChanged(bool selectFirst) {
    selected_.reset();
    hover_.reset();
    pressed_.reset();
    top_ = 0;
    Arrange();
    TellReaders(EVENT_OBJECT_REORDER);
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
    TellReaders(EVENT_OBJECT_REORDER);
    if (top_ > 0)
        ScrollTo(top_ + layout_.Height() - height);
}

void PaletteList::SelectFirst() {
    if (layout_.Tiles() > 0)
        Select(0);
}

std::optional<std::size_t> PaletteList::Selected() const {
    return selected_ ? std::optional(View().SymbolOn(*selected_)) : std::nullopt;
}

std::wstring PaletteList::NameOf(std::size_t tile) const {
    return model_.Symbol(View().SymbolOn(tile)).name;
}

/// What a tile shows besides, and the heading above it.
std::wstring PaletteList::DescriptionOf(std::size_t tile) const {
    const std::size_t number = View().SymbolOn(tile);
    std::wstring text = model_.Symbol(number).size + L", " + model_.Sections()[layout_.SectionOf(tile)].title;
    if (model_.IsFavourite(number))
        text += L", Favorit";
    return text;
}

/// event: about the whole list, or about the selected tile.
void PaletteList::TellReaders(DWORD event) const {
    const LONG child =
        event == EVENT_OBJECT_REORDER || !selected_ ? CHILDID_SELF : static_cast<LONG>(*selected_) + 1;
    if (window_ != nullptr)
        NotifyWinEvent(event, window_, OBJID_CLIENT, child);
}

SIZE PaletteList::Size() const {
    RECT client{};
    GetClientRect(window_, &client);
    return {client.right, client.bottom};
}

PaletteView PaletteList::View() const {
    return {model_, layout_, top_, Size(), selected_, hover_, GetFocus() == window_};
}

void PaletteList::Arrange() {
    if (look_ == nullptr || window_ == nullptr)
        return;
    std::vector<std::size_t> counts;
    for (const PaletteSection& section : model_.Sections())
        counts.push_back(section.symbols.size());
    layout_ = PaletteLayout(counts, painter_.Measures(static_cast<int>(Size().cx)));
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
    case SB_LINEUP: ScrollBy(-painter_.PictureSide() / 2); break;
    case SB_LINEDOWN: ScrollBy(painter_.PictureSide() / 2); break;
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
    const int gap = layout_.Gap();
    const int from = place.top == heading.bottom ? heading.top : place.top - gap;
    const int seen = static_cast<int>(Size().cy);
    if (from < top_)
        ScrollTo(from);
    else if (place.bottom + gap > top_ + seen)
        ScrollTo(place.bottom + gap - seen);
    InvalidateRect(window_, nullptr, FALSE);
    TellReaders(EVENT_OBJECT_SELECTION);
    if (GetFocus() == window_)
        TellReaders(EVENT_OBJECT_FOCUS);
}

void PaletteList::MoveSelection(std::size_t tile) {
    if (layout_.Tiles() > 0)
        Select(std::min(tile, layout_.Tiles() - 1));
}

/// False for a key that means nothing here.
bool PaletteList::OnKey(WPARAM key) {
    const std::size_t tile = selected_.value_or(0);
    const int rows = std::max(static_cast<int>(Size().cy) / std::max(painter_.PictureSide() * 2, 1), 1);
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
            owner_.Place(View().SymbolOn(tile));
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
        owner_.Drag(View().SymbolOn(*selected_));
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
        owner_.Place(View().SymbolOn(*selected_));
}

void PaletteList::SetHover(std::optional<std::size_t> tile) {
    if (hover_ == tile)
        return;
    hover_ = tile;
    InvalidateRect(window_, nullptr, FALSE);
}

void PaletteList::ShowMenu(POINT screen, bool byKeyboard) {
    if (byKeyboard && selected_) {
        const RECT place = View().PlaceOf(*selected_);
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
            if (!painter_.Paint(dc, View()))
                SetTimer(window_, kPictureTimer, USER_TIMER_MINIMUM, nullptr);
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
    case WM_GETOBJECT:
        return static_cast<LONG>(lParam) == OBJID_CLIENT ? accessible_->Answer(wParam)
                                                         : DefWindowProcW(window_, message, wParam, lParam);
    case WM_SETFOCUS: TellReaders(EVENT_OBJECT_FOCUS); [[fallthrough]];
    case WM_KILLFOCUS: InvalidateRect(window_, nullptr, FALSE); return 0;
    case WM_KEYDOWN: return OnKey(wParam) ? 0 : DefWindowProcW(window_, message, wParam, lParam);
    case WM_CHAR:
        if (wParam == L' ' && selected_)
            owner_.ToggleFavourite(View().SymbolOn(*selected_));
        else if (wParam > L' ')
            owner_.TypeOn(static_cast<wchar_t>(wParam));
        return 0;
    default: return DefWindowProcW(window_, message, wParam, lParam);
    }
}
