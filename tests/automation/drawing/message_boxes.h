#pragma once

#include <windows.h>

#include <ostream>
#include <string>
#include <vector>

namespace drawing {

struct ShownBox {
    std::wstring title;
    std::wstring text;
    std::string icon;         ///< "stop", "information", "none" or "other"
    std::vector<int> buttons; ///< their command ids

    bool operator==(const ShownBox&) const = default;
};

std::ostream& operator<<(std::ostream& out, const ShownBox& box);

/// Answers every message box of this thread with OK while it lives, and remembers what was shown.
class MessageBoxes {
public:
    MessageBoxes();
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;
    ~MessageBoxes();

    const std::vector<ShownBox>& Shown() const { return shown_; }

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD);

    UINT_PTR timer_;
    std::vector<ShownBox> shown_;
};

/// A box with only an OK button under the program's name.
ShownBox OkBox(const std::wstring& text, const std::string& icon);

} // namespace drawing
