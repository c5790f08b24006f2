#pragma once

#include "editor.h"

#include <functional>

/// The child window in which the plan is seen: it hands mouse and keys to the editor. Commands and the context menu are
/// its parent's.
class PlanWindow {
public:
    /// Does something with the editor and shows what has come of it, or what failed.
    using Guard = std::function<void(const std::function<void()>&)>;

    explicit PlanWindow(Editor& editor) : editor_(editor) {}
    PlanWindow(const PlanWindow&) = delete;

    void Create(HWND parent, Guard guard);
    HWND Window() const { return window_; }
    void MoveTo(const RECT& area);
    /// Shows the picture as it is now.
    void Refresh() { InvalidateRect(window_, nullptr, FALSE); }
    /// Where the mouse is, in pixels of the picture.
    POINT Mouse() const;

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void Command(int id) const { SendMessageW(GetParent(window_), WM_COMMAND, static_cast<WPARAM>(id), 0); }
    void Paint();

    Editor& editor_;
    Guard guard_;
    HWND window_ = nullptr;
};
