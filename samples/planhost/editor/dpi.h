#pragma once

#include <windows.h>

/// Dots to the inch of the screen that a window is on; 96 is a screen's 100 %.
UINT DotsOf(HWND window);

/// A length in pixels of a screen of 100 %, on a screen of so many dots.
inline int Scaled(int pixels, UINT dots) {
    return MulDiv(pixels, static_cast<int>(dots), USER_DEFAULT_SCREEN_DPI);
}
