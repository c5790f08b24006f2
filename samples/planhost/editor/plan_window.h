#pragma once

#include "editor.h"
#include "place_entry.h"

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
    /// Shows the picture as it is now, and goes on to draw what is missing in it.
    void Refresh();
    /// Where the mouse is, in pixels of the picture.
    POINT Mouse() const;
    /// Of the picture, on the screen.
    POINT Corner() const;

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool OnMouse(UINT message, WPARAM wParam, LPARAM lParam);
    void OnKey(WPARAM key, LPARAM info);
    void OnCharacter(wchar_t character);
    void Command(int id) const { SendMessageW(GetParent(window_), WM_COMMAND, static_cast<WPARAM>(id), 0); }
    void Paint();
    void DrawOn();

    Editor& editor_;
    Guard guard_;
    HWND window_ = nullptr;
    PlaceEntry entry_;
    bool isKeypadDigit_ = false; ///< the last key
    bool isDrawingOn_ = false;
};
