#pragma once

#include <windows.h>

namespace dialog {

/// Keeps a window from painting until all of its changes are made.
class PaintingPause {
public:
    explicit PaintingPause(HWND window) : window_(window) { SendMessageW(window_, WM_SETREDRAW, FALSE, 0); }
    PaintingPause(const PaintingPause&) = delete;
    PaintingPause& operator=(const PaintingPause&) = delete;
    ~PaintingPause() {
        SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(window_, nullptr, TRUE);
    }

private:
    HWND window_;
};

} // namespace dialog
