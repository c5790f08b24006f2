#pragma once

#include "base/font_request.h"

#include <windows.h>

namespace platform {

/// A device context from a 32-bit handle value; handles are sign-extended.
inline HDC DeviceContext(LONG_PTR handle) {
    return reinterpret_cast<HDC>(handle);
}

/// A GDI font that is created and selected; releasing selects the previous one back and deletes it.
class SelectedFont {
public:
    SelectedFont() = default;
    SelectedFont(const SelectedFont&) = delete;
    SelectedFont& operator=(const SelectedFont&) = delete;
    ~SelectedFont() { Release(); }

    /// Releases what was selected before. A request equal to the selected font changes nothing. Error 5 when
    /// the GDI refuses.
    void Select(HDC context, const base::FontRequest& request);
    void Release();

private:
    HDC context_ = nullptr;
    HFONT font_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    base::FontRequest request_;
};

} // namespace platform
