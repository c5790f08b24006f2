#include "plan_window.h"

#include "resource.h"
#include "window_messages.h"

#include <windowsx.h>

#include <cwctype>

namespace {

constexpr wchar_t kPlanClass[] = L"PlanhostPlan";
constexpr UINT_PTR kDrawOnTimer = 1;
constexpr ULONGLONG kDrawOnTime = 25; // milliseconds before the user is looked after again

POINT PointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

void RegisterPlanClass(WNDPROC onMessage) {
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.lpfnWndProc = onMessage;
    form.hInstance = GetModuleHandleW(nullptr);
    form.lpszClassName = kPlanClass;
    RegisterClassExW(&form);
}

} // namespace

void PlanWindow::Create(HWND parent, Guard guard) {
    guard_ = std::move(guard);
    RegisterPlanClass(OnMessage);
    CreateWindowExW(0, kPlanClass, L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 0, 0, parent, nullptr,
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

POINT PlanWindow::Corner() const {
    POINT corner{};
    ClientToScreen(window_, &corner);
    return corner;
}

LRESULT CALLBACK PlanWindow::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Deliver(&PlanWindow::window_, &PlanWindow::Handle, window, message, wParam, lParam);
}

LRESULT PlanWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (OnMouse(message, wParam, lParam))
        return 0;
    switch (message) {
    case WM_SIZE: guard_([&] { editor_.Resize({LOWORD(lParam), HIWORD(lParam)}); }); return 0;
    case WM_PAINT: Paint(); return 0;
    case WM_ERASEBKGND: return 1; // the picture covers everything
    case WM_TIMER: DrawOn(); return 0;
    case WM_KEYDOWN: OnKey(wParam, lParam); return 0;
    case WM_CHAR: OnCharacter(static_cast<wchar_t>(wParam)); return 0;
    case WM_SETCURSOR:
        if (LOWORD(lParam) != HTCLIENT || reinterpret_cast<HWND>(wParam) != window_)
            break;
        SetCursor(LoadCursorW(nullptr, editor_.IsPanning() ? IDC_SIZEALL
                                       : editor_.HasTool() ? IDC_CROSS
                                                           : IDC_ARROW));
        return TRUE;
    default: break;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

bool PlanWindow::OnMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT pixel = PointOf(lParam);
    switch (message) {
    case WM_MOUSEMOVE: {
        TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, window_, 0};
        TrackMouseEvent(&leaving);
        guard_([&] { editor_.MouseMove(pixel); });
        return true;
    }
    case WM_MOUSELEAVE: guard_([&] { editor_.MouseLeave(); }); return true;
    case WM_LBUTTONDOWN:
    case WM_MBUTTONDOWN:
        entry_.Close();
        SetFocus(window_);
        SetCapture(window_);
        if (message == WM_MBUTTONDOWN || GetKeyState(VK_SPACE) < 0)
            editor_.StartPanning(pixel);
        else
            guard_([&] { editor_.MouseDown(pixel); });
        return true;
    case WM_LBUTTONUP:
    case WM_MBUTTONUP:
        if (editor_.IsPanning())
            editor_.StopPanning();
        else
            guard_([&] { editor_.MouseUp(pixel); });
        ReleaseCapture();
        return true;
    case WM_CAPTURECHANGED:
        editor_.StopPanning();
        if (!editor_.HasTool())
            guard_([&] { editor_.Cancel(); });
        return true;
    case WM_MOUSEWHEEL: {
        POINT at = pixel;
        ScreenToClient(window_, &at);
        guard_([&] { editor_.Zoom(at, GET_WHEEL_DELTA_WPARAM(wParam) / static_cast<double>(WHEEL_DELTA)); });
        return true;
    }
    case WM_RBUTTONDOWN:
        if (editor_.IsBusy())
            Command(IDM_CANCEL);
        else
            guard_([&] { editor_.MarkAt(pixel); });
        return true;
    default: return false;
    }
}

void PlanWindow::OnKey(WPARAM key, LPARAM info) {
    isKeypadDigit_ = key >= VK_NUMPAD0 && key <= VK_NUMPAD9;
    const bool withCtrl = GetKeyState(VK_CONTROL) < 0;
    if (key == VK_ESCAPE) // no accelerator: those rest while the mouse draws a rubber band
        return Command(IDM_CANCEL);
    if (const std::optional<TurnKey> turn = TurnKeyOf(key, info, withCtrl); turn && editor_.HasTool())
        return guard_([&] { editor_.Turn(*turn); }); // for every repetition of a key that is held, too
    if (editor_.IsBusy() || withCtrl || editor_.Document().Marks().IsEmpty())
        return;
    const int step = (GetKeyState(VK_SHIFT) < 0 ? 1 : 10) * kUnitsPerMillimetre;
    const int right = (key == VK_RIGHT ? step : 0) - (key == VK_LEFT ? step : 0);
    const int down = (key == VK_DOWN ? step : 0) - (key == VK_UP ? step : 0);
    if (right != 0 || down != 0)
        guard_([&] { editor_.Nudge(right, down); });
}

/// Characters, not keys: where they are on the keyboard differs from country to country.
void PlanWindow::OnCharacter(wchar_t character) {
    if (!editor_.HasTool())
        return;
    if (const std::optional<TurnKey> turn = TurnKeyOf(character))
        return guard_([&] { editor_.Turn(*turn); });
    const bool beginsPlace =
        character == L'@' || character == L'\r' || (iswdigit(character) && !isKeypadDigit_);
    if (beginsPlace)
        entry_.Open(window_, Mouse(), character == L'\r' ? L"" : std::wstring(1, character),
                    [this](const TypedMove& place) { guard_([&] { editor_.FixAt(place); }); });
}

void PlanWindow::Refresh() {
    InvalidateRect(window_, nullptr, FALSE);
    if (!std::exchange(isDrawingOn_, true))
        SetTimer(window_, kDrawOnTimer, USER_TIMER_MINIMUM, nullptr);
}

/// A timer's message comes when there is no other: what the user does goes first.
void PlanWindow::DrawOn() {
    const ULONGLONG end = GetTickCount64() + kDrawOnTime;
    bool isMissing = true;
    while (isMissing && GetTickCount64() < end)
        isMissing = editor_.DrawOn();
    InvalidateRect(window_, nullptr, FALSE);
    if (isMissing)
        return;
    KillTimer(window_, kDrawOnTimer);
    isDrawingOn_ = false;
    if (const std::optional<std::wstring> failure = editor_.View().TakeFailure())
        MessageBoxW(GetParent(window_), failure->c_str(), L"Planhost", MB_ICONEXCLAMATION);
}

void PlanWindow::Paint() {
    PAINTSTRUCT paint;
    editor_.Paint(BeginPaint(window_, &paint));
    EndPaint(window_, &paint);
}
