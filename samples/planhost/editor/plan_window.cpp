#include "plan_window.h"

#include "resource.h"

#include <windowsx.h>

namespace {

constexpr wchar_t kClassName[] = L"PlanhostPlan";

POINT PointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

void RegisterWindowClass(WNDPROC onMessage) {
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.lpfnWndProc = onMessage;
    form.hInstance = GetModuleHandleW(nullptr);
    form.lpszClassName = kClassName;
    RegisterClassExW(&form);
}

} // namespace

void PlanWindow::Create(HWND parent, Guard guard) {
    guard_ = std::move(guard);
    RegisterWindowClass(OnMessage);
    CreateWindowExW(0, kClassName, L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent, nullptr,
                    GetModuleHandleW(nullptr), this);
}

void PlanWindow::MoveTo(const RECT& area) {
    MoveWindow(window_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
}

POINT PlanWindow::Mouse() const {
    POINT mouse;
    GetCursorPos(&mouse);
    ScreenToClient(window_, &mouse);
    return mouse;
}

LRESULT CALLBACK PlanWindow::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<PlanWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<PlanWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self != nullptr ? self->Handle(message, wParam, lParam)
                           : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT PlanWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE: guard_([&] { editor_.Resize({LOWORD(lParam), HIWORD(lParam)}); }); return 0;
    case WM_PAINT: Paint(); return 0;
    case WM_ERASEBKGND: return 1; // the picture covers everything
    case WM_MOUSEMOVE: guard_([&] { editor_.MouseMove(PointOf(lParam)); }); return 0;
    case WM_LBUTTONDOWN:
        SetFocus(window_);
        SetCapture(window_);
        guard_([&] { editor_.MouseDown(PointOf(lParam)); });
        return 0;
    case WM_LBUTTONUP:
        guard_([&] { editor_.MouseUp(PointOf(lParam)); });
        ReleaseCapture();
        return 0;
    case WM_CAPTURECHANGED:
        if (!editor_.HasTool())
            guard_([&] { editor_.Cancel(); });
        return 0;
    case WM_RBUTTONDOWN: Command(IDM_CANCEL); return 0;
    case WM_KEYDOWN:
        if (wParam == VK_ESCAPE) // no accelerator: those rest while the mouse draws a rubber band
            Command(IDM_CANCEL);
        return 0;
    case WM_KEYUP: guard_([&] { editor_.KeyUp(wParam, lParam); }); return 0;
    case WM_SETCURSOR:
        SetCursor(LoadCursorW(nullptr, editor_.HasTool() ? IDC_CROSS : IDC_ARROW));
        return TRUE;
    default: return DefWindowProcW(window_, message, wParam, lParam);
    }
}

void PlanWindow::Paint() {
    PAINTSTRUCT paint;
    editor_.Paint(BeginPaint(window_, &paint));
    EndPaint(window_, &paint);
}
