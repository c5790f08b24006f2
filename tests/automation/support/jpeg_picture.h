#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

namespace support {

/// A JPEG file, decoded by the system.
struct JpegPicture {
    int status = 0; ///< of GDI+; 0 when the file is a picture
    bool isJpeg = false;
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels; ///< row by row, blue in the lowest byte

    /// The colour nearest to black; a picture that shows nothing has a light one.
    int DarkestGrey() const;
};

JpegPicture ReadJpeg(const std::wstring& path);

/// What GDI+ itself answers when it is asked to save a picture there.
int StatusOfSavingTo(const std::wstring& path);

} // namespace support
