#pragma once

#include <windows.h>

#include <string>

namespace platform {

/// Writes a bitmap, which must not be selected into a device context, as a JPEG file; quality is 0 to 100.
/// GDI+ runs for the length of the call only. Error 5 with GDI+'s status number at the end of its text.
void SaveJpeg(HBITMAP picture, const std::u16string& fileName, LONG quality);

} // namespace platform
