#include "automation/dialog/system_dpi.h"

namespace dialog {

namespace {

constexpr int kDisableAll = 1; // DDC_DISABLE_ALL

template <class Function>
Function* UserFunction(const char* name) {
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

} // namespace

NONCLIENTMETRICSW WindowMetrics(HWND window) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    auto* const dpiOf = UserFunction<UINT WINAPI(HWND)>("GetDpiForWindow");
    auto* const infoFor =
        UserFunction<BOOL WINAPI(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
    if (dpiOf == nullptr || infoFor == nullptr ||
        infoFor(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpiOf(window)) == FALSE)
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics;
}

void FollowResolutionItself(HWND dialog) {
    auto* const set = UserFunction<BOOL WINAPI(HWND, int, int)>("SetDialogDpiChangeBehavior");
    if (set != nullptr)
        set(dialog, kDisableAll, kDisableAll);
}

} // namespace dialog
