#include "automation/bare_list.h"

#include <windows.h>

namespace {

constexpr int kList = 100;

/// An empty dialog of 360 by 230 units, as large as the selection dialog opens.
struct Template {
    DLGTEMPLATE dialog{WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 360, 230};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
};

void Fill(HWND dialog, const std::vector<std::u16string>& names) {
    RECT area{};
    GetClientRect(dialog, &area);
    const HWND list =
        CreateWindowExW(0, L"LISTBOX", L"",
                        WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                        10, 10, area.right / 3, area.bottom - 50, dialog,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(kList)), nullptr, nullptr);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (const std::u16string& name : names)
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    SendMessageW(list, LB_SETCURSEL, names.size() / 2, 0);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    SetFocus(list);
}

INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        Fill(dialog, *reinterpret_cast<const std::vector<std::u16string>*>(lParam));
        return FALSE; // the list has the focus already
    }
    if (message != WM_COMMAND || LOWORD(wParam) != IDCANCEL)
        return FALSE;
    EndDialog(dialog, 0);
    return TRUE;
}

} // namespace

void ShowListOf(const std::vector<std::u16string>& names) {
    const Template empty;
    DialogBoxIndirectParamW(nullptr, &empty.dialog, GetActiveWindow(), Procedure,
                            reinterpret_cast<LPARAM>(&names));
}
