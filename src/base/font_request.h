#pragma once

#include <cstdint>
#include <string>

namespace base {

/// The font that a text needs on a device.
struct FontRequest {
    std::int32_t height = 1;     ///< character height in pixels, without internal leading
    std::int32_t escapement = 0; ///< tenths of a degree, counter-clockwise
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    std::u16string name;

    friend bool operator==(const FontRequest&, const FontRequest&) = default;
};

} // namespace base
