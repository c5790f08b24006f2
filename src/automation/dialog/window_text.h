#pragma once

#include <windows.h>

#include <string>

namespace dialog {

/// The text of a window; the caption of a control.
std::u16string WindowText(HWND window);

void SetWindowText(HWND window, const std::u16string& text);

} // namespace dialog
