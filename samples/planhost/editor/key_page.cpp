#include "key_page.h"

#include "dialog_support.h"
#include "resource.h"

namespace {

// Two columns: the keys, and what they do.
constexpr wchar_t kKeys[] = L"Sehen\r\n"
                            L"Rad\tGröße, um den Zeiger herum\r\n"
                            L"Mittlere Taste oder Leertaste und Ziehen\tAusschnitt schieben\r\n"
                            L"Strg+0, Strg+1, Strg+2\tganzer Plan, wahre Größe, was markiert ist\r\n"
                            L"F7, F9\tRaster, Fangen; Umschalt fängt auch ohne F9\r\n"
                            L"\r\nPalette\r\n"
                            L"Strg+F, Buchstaben\tFilter; Eingabe setzt das Symbol\r\n"
                            L"Leertaste, rechte Taste\tFavorit, Menü\r\n"
                            L"Esc\tFilter weg, zurück zum Plan\r\n"
                            L"\r\nSetzen\r\n"
                            L"F2, F3, Strg+F\tSymbol wählen, noch einmal, Filter der Palette\r\n"
                            L"Bild auf/ab, * und /\tdrehen um 10°\r\n"
                            L"Pfeile, + und -\tdrehen um 1°\r\n"
                            L"Pos1, Ende\tdrehen um 90°; Strg+Pos1: zurück auf 0°\r\n"
                            L"Ziffernblock\teine von acht Richtungen\r\n"
                            L"1200;3400 oder @100;-50\tStelle im Plan oder Strecke, dann Eingabe\r\n"
                            L"Esc\taufhören\r\n"
                            L"\r\nMarkieren\r\n"
                            L"Klick, noch ein Klick\toberstes Symbol, das darunter\r\n"
                            L"Rechteck, Strg, Strg+A\tmehrere, dazu oder weg, alle\r\n"
                            L"\r\nÄndern\r\n"
                            L"Ziehen, Strg und Ziehen\tverschieben, kopieren; der runde Griff dreht\r\n"
                            L"Pfeile\t10 mm, mit Umschalt 1 mm\r\n"
                            L"Strg+M, Strg+D, Strg+U\tverschieben, duplizieren, um oder an Zahlen\r\n"
                            L"Strg+X, Strg+C, Strg+V\tausschneiden, kopieren, einfügen\r\n"
                            L"Strg+Z, Strg+Y, Entf\tzurück, wieder vor, löschen\r\n"
                            L"F4\tEigenschaften\r\n"
                            L"Strg+Umschalt+Bild auf/ab\tnach vorn, nach hinten\r\n"
                            L"\r\nPlan\r\n"
                            L"Strg+N, Strg+O, Strg+S\tneu, öffnen, speichern (mit Umschalt: unter)\r\n"
                            L"Strg+P, Strg+E\tdrucken, DXF exportieren";

INT_PTR CALLBACK OnMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        CentreOverOwner(dialog);
        const UINT secondColumn = 150; // in quarters of a letter
        SendDlgItemMessageW(dialog, IDC_KEYS, EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&secondColumn));
        SetDlgItemTextW(dialog, IDC_KEYS, kKeys);
        SetFocus(GetDlgItem(dialog, IDOK)); // the text would be marked
        return FALSE;
    }
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL))
        return EndDialog(dialog, IDOK);
    return FALSE;
}

} // namespace

void ShowKeys(HWND owner) {
    ShowDialog(owner, IDD_KEYS, OnMessage, nullptr);
}
