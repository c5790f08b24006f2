#include "support/selection_dialog.h"

#include "support/window_text.h"

namespace support {

namespace {

BOOL CALLBACK TakeControl(HWND control, LPARAM controls) {
    reinterpret_cast<std::vector<HWND>*>(controls)->push_back(control);
    return TRUE;
}

} // namespace

bool SelectionDialog::Is(HWND window) {
    wchar_t name[16] = {};
    GetClassNameW(GetDlgItem(window, kList), name, 16);
    return _wcsicmp(name, L"ListBox") == 0;
}

std::vector<HWND> SelectionDialog::Controls() const {
    std::vector<HWND> controls;
    EnumChildWindows(window_, TakeControl, reinterpret_cast<LPARAM>(&controls));
    return controls;
}

std::wstring SelectionDialog::Title() const {
    return WindowText(window_);
}

std::wstring SelectionDialog::Text(int id) const {
    return WindowText(Control(id));
}

std::vector<std::wstring> SelectionDialog::Entries() const {
    std::vector<std::wstring> entries;
    const auto count = SendMessageW(Control(kList), LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const auto entry = static_cast<WPARAM>(i);
        std::wstring text(static_cast<std::size_t>(SendMessageW(Control(kList), LB_GETTEXTLEN, entry, 0)) + 1,
                          L'\0');
        text.resize(static_cast<std::size_t>(
            SendMessageW(Control(kList), LB_GETTEXT, entry, reinterpret_cast<LPARAM>(text.data()))));
        entries.push_back(text);
    }
    return entries;
}

int SelectionDialog::Selected() const {
    return static_cast<int>(SendMessageW(Control(kList), LB_GETCURSEL, 0, 0));
}

std::wstring SelectionDialog::SelectedEntry() const {
    return Selected() < 0 ? std::wstring() : Entries()[static_cast<std::size_t>(Selected())];
}

RECT SelectionDialog::Place(int id) const {
    RECT place{};
    GetWindowRect(Control(id), &place);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

SIZE SelectionDialog::ClientSize() const {
    RECT area{};
    GetClientRect(window_, &area);
    return {area.right, area.bottom};
}

LONG SelectionDialog::TextWidth(int id) const {
    const HDC dc = GetDC(window_);
    const HGDIOBJ before =
        SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(Control(id), WM_GETFONT, 0, 0)));
    RECT box{};
    DrawTextW(dc, Text(id).c_str(), -1, &box, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(dc, before);
    ReleaseDC(window_, dc);
    return box.right;
}

void SelectionDialog::Press(int id) const {
    PostMessageW(Control(id), BM_CLICK, 0, 0);
}

void SelectionDialog::Key(WORD key) const {
    const HWND focus = GetFocus();
    PostMessageW(focus, WM_KEYDOWN, key, 1);
    PostMessageW(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001U));
}

void SelectionDialog::AccessKey(wchar_t letter) const {
    PostMessageW(GetFocus(), WM_SYSCHAR, letter, 0x20000001);
}

void SelectionDialog::Type(const std::wstring& letters) const {
    for (const wchar_t letter : letters)
        PostMessageW(GetFocus(), WM_CHAR, letter, 1);
}

LPARAM SelectionDialog::PlaceOfEntry(int entry) const {
    RECT item{};
    SendMessageW(Control(kList), LB_SETTOPINDEX, static_cast<WPARAM>(entry), 0);
    SendMessageW(Control(kList), LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&item));
    return MAKELPARAM(item.left + 5, (item.top + item.bottom) / 2);
}

void SelectionDialog::ClickEntry(int entry) const {
    const LPARAM place = PlaceOfEntry(entry);
    PostMessageW(Control(kList), WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(Control(kList), WM_LBUTTONUP, 0, place);
}

void SelectionDialog::DoubleClickEntry(int entry) const {
    const LPARAM place = PlaceOfEntry(entry);
    ClickEntry(entry);
    PostMessageW(Control(kList), WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    PostMessageW(Control(kList), WM_LBUTTONUP, 0, place);
}

void SelectionDialog::Resize(SIZE window) const {
    SetWindowPos(window_, nullptr, 0, 0, window.cx, window.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace support
