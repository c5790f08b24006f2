#include "move_dialog.h"

#include "../millimetres.h"
#include "dialog_support.h"
#include "resource.h"
#include "typed_place.h"

namespace {

/// What the dialog begins with, and what it ends with.
struct Question {
    std::wstring name;
    POINT at;
    TypedMove move;
};

void Explain(HWND dialog, int field, const std::wstring& message) {
    MessageBoxW(dialog, message.c_str(), L"Verschieben", MB_ICONEXCLAMATION);
    SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, field)), TRUE);
}

/// Reads a field, or shows what is wrong with it.
bool TakeLength(HWND dialog, int id, LONG& units) {
    const std::wstring text = WindowText(GetDlgItem(dialog, id));
    const std::optional<long> read = TypedLength(text);
    if (read)
        units = *read;
    else
        Explain(dialog, id, L"\"" + text + L"\" ist keine Länge in Millimetern.");
    return read.has_value();
}

/// A distance begins with none, a place with the present one.
void Propose(HWND dialog, const Question& question) {
    const bool isRelative = IsDlgButtonChecked(dialog, IDC_RELATIVE) == BST_CHECKED;
    SetDlgItemTextW(dialog, IDC_X, isRelative ? L"0" : MillimetresText(question.at.x, L',').c_str());
    SetDlgItemTextW(dialog, IDC_Y, isRelative ? L"0" : MillimetresText(question.at.y, L',').c_str());
    const std::wstring lands = isRelative ? L"Alle markierten Symbole gehen diese Strecke."
                                          : L"Dorthin kommt der Einfügepunkt von \"" + question.name + L"\".";
    SetDlgItemTextW(dialog, IDC_LANDS, lands.c_str());
}

void Begin(HWND dialog, const Question& question) {
    CheckRadioButton(dialog, IDC_RELATIVE, IDC_ABSOLUTE, IDC_RELATIVE);
    Propose(dialog, question);
    SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, IDC_X)), TRUE);
}

INT_PTR CALLBACK OnMoveMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        CentreOverOwner(dialog);
        Begin(dialog, *reinterpret_cast<Question*>(lParam));
        return FALSE; // the focus is set
    }
    if (message != WM_COMMAND)
        return FALSE;
    auto& question = *reinterpret_cast<Question*>(GetWindowLongPtrW(dialog, DWLP_USER));
    switch (LOWORD(wParam)) {
    case IDC_RELATIVE:
    case IDC_ABSOLUTE: Propose(dialog, question); return TRUE;
    case IDOK:
        question.move.isRelative = IsDlgButtonChecked(dialog, IDC_RELATIVE) == BST_CHECKED;
        if (TakeLength(dialog, IDC_X, question.move.to.x) && TakeLength(dialog, IDC_Y, question.move.to.y))
            EndDialog(dialog, IDOK);
        return TRUE;
    case IDCANCEL: EndDialog(dialog, IDCANCEL); return TRUE;
    default: return FALSE;
    }
}

} // namespace

std::optional<TypedMove> AskForMove(HWND owner, const std::wstring& name, POINT at) {
    Question question{name, at, {}};
    if (ShowDialog(owner, IDD_MOVE, OnMoveMessage, &question) != IDOK)
        return std::nullopt;
    return question.move;
}
