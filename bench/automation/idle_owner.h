#pragma once

#include <windows.h>

#include <functional>

/// The active window of a program, which the modal loop of a dialog tells when there is nothing left to do.
class IdleOwner {
public:
    /// `action` gets the dialog, once.
    explicit IdleOwner(std::function<void(HWND dialog)> action);
    IdleOwner(const IdleOwner&) = delete;
    IdleOwner& operator=(const IdleOwner&) = delete;
    ~IdleOwner();

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::function<void(HWND)> action_;
    HWND window_;
};
