#pragma once

#include <windows.h>

/// Hands the messages of a window to the object that made it: the last argument of CreateWindowEx must be that object. It
/// gets its handle with the first message; before that the system answers.
template <class Object>
LRESULT Deliver(HWND Object::*handle, LRESULT (Object::*handler)(UINT, WPARAM, LPARAM), HWND window,
                UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* made = static_cast<Object*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        made->*handle = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
    }
    auto* object = reinterpret_cast<Object*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return object != nullptr ? (object->*handler)(message, wParam, lParam)
                             : DefWindowProcW(window, message, wParam, lParam);
}
