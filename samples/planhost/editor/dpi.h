#pragma once

#include <windows.h>

/// Dots to the inch of the screen that a window is on; 96 is a screen's 100 %. window: none for the main screen.
UINT DotsOf(HWND window);

/// A top-level window has been told that its screen has so many dots now. Its parts ask DotsOf.
void TellDots(HWND window, UINT dots);

/// To be called before the window is gone.
void ForgetDots(HWND window);

/// Dots to the inch of the glass itself, where the screen tells its size and that can be believed; else DotsOf.
double MeasuredDotsOf(HWND window);

/// A length in pixels of a screen of 100 %, on a screen of so many dots.
inline int Scaled(int pixels, UINT dots) {
    return MulDiv(pixels, static_cast<int>(dots), USER_DEFAULT_SCREEN_DPI);
}
