#pragma once

#include <windows.h>

/// Shows all keys on one page.
void ShowKeys(HWND owner);
