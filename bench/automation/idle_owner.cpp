#include "automation/idle_owner.h"

#include <utility>

IdleOwner::IdleOwner(std::function<void(HWND)> action)
    : action_(std::move(action)),
      window_(CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 600, 500,
                              nullptr, nullptr, nullptr, nullptr)) {
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    SetActiveWindow(window_);
}

IdleOwner::~IdleOwner() {
    DestroyWindow(window_);
}

LRESULT CALLBACK IdleOwner::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const owner = reinterpret_cast<IdleOwner*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_ENTERIDLE && owner->action_)
        std::exchange(owner->action_, nullptr)(reinterpret_cast<HWND>(lParam));
    return DefWindowProcW(window, message, wParam, lParam);
}
