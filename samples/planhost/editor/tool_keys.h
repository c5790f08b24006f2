#pragma once

#include <windows.h>

/// The key as the group tool knows it. The numeric keypad has two forms: with Num Lock its own codes, without
/// it those of the arrow keys, told from the arrow keys by a missing extended flag. Plus and minus also come
/// from the letters' part of the keyboard. key and info: as WM_KEYUP has them.
short GroupToolKey(WPARAM key, LPARAM info);

/// 1 Shift, 2 Ctrl, 4 Alt, as key events of Basic have them.
short ShiftState();
