#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// The line at the foot of the editor's window: what the user may do now, and three figures behind it.
class StatusBar {
public:
    enum Part : std::size_t { Hint, Position, Marked, Zoom, Parts };

    StatusBar() = default;
    StatusBar(const StatusBar&) = delete;
    ~StatusBar() { DeleteObject(font_); }

    /// False when the system does not give it.
    bool Create(HWND parent);
    /// Takes its place at the lower edge of its parent, which is so wide. dots: of the screen to the inch.
    void Arrange(int width, UINT dots);
    int Height() const;
    void Show(Part part, const std::wstring& text);

private:
    HWND window_ = nullptr;
    HFONT font_ = nullptr;
    UINT dots_ = 0; ///< that the font is for
    std::vector<std::wstring> texts_;
};
