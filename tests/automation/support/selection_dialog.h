#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace support {

// The control ids of the selection dialog, as documented.
inline constexpr int kListLabel = 1001;
inline constexpr int kList = 1002;
inline constexpr int kFrame = 1003;
inline constexpr int kPreview = 1004;
inline constexpr int kWidthLabel = 1005;
inline constexpr int kWidth = 1006;
inline constexpr int kHeightLabel = 1007;
inline constexpr int kHeight = 1008;
inline constexpr int kExport = 1009;
inline constexpr int kProgress = 1010;
inline constexpr int kProgressText = 1011;
inline constexpr int kSaved = 1012;

/// The open selection dialog, reached as a program for the blind or for tests reaches it: by window messages.
class SelectionDialog {
public:
    explicit SelectionDialog(HWND window) : window_(window) {}

    /// True for a window that is one.
    static bool Is(HWND window);

    HWND Window() const { return window_; }
    HWND Control(int id) const { return GetDlgItem(window_, id); }
    std::vector<HWND> Controls() const;

    std::wstring Title() const;
    std::wstring Text(int id) const;
    std::vector<std::wstring> Entries() const;
    /// -1 for none.
    int Selected() const;
    std::wstring SelectedEntry() const;
    bool IsEnabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }
    bool IsShown(int id) const { return IsWindowVisible(Control(id)) != FALSE; }
    /// In pixels of the dialog's client area.
    RECT Place(int id) const;
    SIZE ClientSize() const;
    /// Of a caption, in the control's font.
    LONG TextWidth(int id) const;

    // What a user does; it takes effect when the dialog handles its messages.
    void Press(int id) const;
    void Key(WORD key) const;
    void AccessKey(wchar_t letter) const;
    void Type(const std::wstring& letters) const;
    void ClickEntry(int entry) const;
    void DoubleClickEntry(int entry) const;
    void Close() const { PostMessageW(window_, WM_CLOSE, 0, 0); }
    /// At once.
    void Resize(SIZE window) const;

private:
    LPARAM PlaceOfEntry(int entry) const;

    HWND window_;
};

} // namespace support
