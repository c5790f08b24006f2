#pragma once

#include <windows.h>

#include <string>

namespace support {

/// A window's title, or what a control says.
std::wstring WindowText(HWND window);

} // namespace support
