#include "move_dialog.h"

#include "../millimetres.h"
#include "resource.h"

#include <string>

namespace {

std::wstring TextOf(HWND dialog, int id) {
    wchar_t text[64];
    const UINT length = GetDlgItemTextW(dialog, id, text, 64);
    return {text, length};
}

/// Reads a field, or shows what is wrong with it.
bool TakeLength(HWND dialog, int id, LONG& units) {
    const std::wstring text = TextOf(dialog, id);
    std::optional<long> read = UnitsFromText(text, L',');
    if (!read)
        read = UnitsFromText(text, L'.');
    if (!read) {
        MessageBoxW(dialog, (L"\"" + text + L"\" ist keine Länge in Millimetern.").c_str(), L"Verschieben",
                    MB_ICONEXCLAMATION);
        SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, id)), TRUE);
        return false;
    }
    units = *read;
    return true;
}

void Accept(HWND dialog, TypedMove& move) {
    move.isRelative = IsDlgButtonChecked(dialog, IDC_RELATIVE) == BST_CHECKED;
    if (TakeLength(dialog, IDC_X, move.to.x) && TakeLength(dialog, IDC_Y, move.to.y))
        EndDialog(dialog, IDOK);
}

INT_PTR CALLBACK OnMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        CheckRadioButton(dialog, IDC_RELATIVE, IDC_ABSOLUTE, IDC_RELATIVE);
        SetDlgItemTextW(dialog, IDC_X, L"0");
        SetDlgItemTextW(dialog, IDC_Y, L"0");
        SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, IDC_X)), TRUE);
        return FALSE; // the focus is set
    }
    if (message != WM_COMMAND)
        return FALSE;
    if (LOWORD(wParam) == IDOK)
        Accept(dialog, *reinterpret_cast<TypedMove*>(GetWindowLongPtrW(dialog, DWLP_USER)));
    else if (LOWORD(wParam) == IDCANCEL)
        EndDialog(dialog, IDCANCEL);
    return TRUE;
}

} // namespace

std::optional<TypedMove> AskForMove(HWND owner) {
    TypedMove move{};
    if (DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_MOVE), owner, OnMessage,
                        reinterpret_cast<LPARAM>(&move)) != IDOK)
        return std::nullopt;
    return move;
}
