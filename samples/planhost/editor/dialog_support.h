#pragma once

#include <windows.h>

#include <string>

// What the dialogs and fields of the editor have in common.

/// Shows a dialog of the resources over its owner, in the message font of the system. start: given to WM_INITDIALOG.
INT_PTR ShowDialog(HWND owner, int dialog, DLGPROC onMessage, void* start);

/// Puts a dialog into the middle of its owner, but onto its screen.
void CentreOverOwner(HWND dialog);

/// The desktop's font for messages, for a screen of so many dots to the inch.
LOGFONTW MessageFont(UINT dots);

/// The same as a font that the caller deletes.
HFONT MakeMessageFont(UINT dots);

/// How high a line of text is, in pixels.
int LineHeightOf(HFONT font);

std::wstring WindowText(HWND window);
