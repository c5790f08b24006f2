#include "dpi.h"

UINT DotsOf(HWND window) {
    // Known from Windows 10 on; before that all screens are alike.
    using Ask = UINT(WINAPI*)(HWND);
    static const auto ask = reinterpret_cast<Ask>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (const UINT dots = ask != nullptr ? ask(window) : 0; dots != 0)
        return dots;
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return static_cast<UINT>(dots);
}
