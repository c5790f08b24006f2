#include "dpi.h"

#include <cstdint>
#include <cstdlib>

namespace {

constexpr wchar_t kDots[] = L"PlanhostDots";

/// A function of a newer Windows; nothing on an older one.
template <class Function>
Function Newer(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryW(library); // stays for as long as the program runs
    return module == nullptr
               ? nullptr
               : reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

} // namespace

UINT DotsOf(HWND window) {
    // Windows 8.1 tells a window of a change, but not who asks.
    const HANDLE told = window != nullptr ? GetPropW(GetAncestor(window, GA_ROOT), kDots) : nullptr;
    if (told != nullptr)
        return static_cast<UINT>(reinterpret_cast<std::uintptr_t>(told));
    // Known from Windows 10 on; before that all screens are alike.
    using Ask = UINT(WINAPI*)(HWND);
    static const auto ask = Newer<Ask>(L"user32.dll", "GetDpiForWindow");
    if (const UINT dots = ask != nullptr && window != nullptr ? ask(window) : 0; dots != 0)
        return dots;
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return static_cast<UINT>(dots);
}

void TellDots(HWND window, UINT dots) {
    SetPropW(window, kDots, reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(dots)));
}

void ForgetDots(HWND window) {
    RemovePropW(window, kDots);
}

double MeasuredDotsOf(HWND window) {
    // Televisions and projectors tell anything.
    constexpr UINT kFewest = 40, kMost = 800;
    constexpr int kMeasured = 2; // MDT_RAW_DPI
    using Ask = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
    static const auto ask = Newer<Ask>(L"shcore.dll", "GetDpiForMonitor");
    UINT across = 0, down = 0;
    const bool isTold = ask != nullptr && SUCCEEDED(ask(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST),
                                                        kMeasured, &across, &down));
    const bool isSquare =
        std::abs(static_cast<int>(across) - static_cast<int>(down)) * 20 <= static_cast<int>(across);
    return isTold && isSquare && across >= kFewest && across <= kMost ? across : DotsOf(window);
}
