#pragma once

#include <windows.h>

#include <string>

// What all dialogs of the editor have in common.

/// Shows a dialog of the resources over its owner, in the message font of the system. start: given to WM_INITDIALOG.
INT_PTR ShowDialog(HWND owner, int dialog, DLGPROC onMessage, void* start);

/// Puts a dialog into the middle of its owner, but onto its screen.
void CentreOverOwner(HWND dialog);

/// The message font for a screen of so many dots to the inch; the caller deletes it.
HFONT MakeMessageFont(UINT dots);

std::wstring WindowText(HWND window);
