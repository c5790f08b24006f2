#pragma once

#include <cstdint>
#include <string>

namespace platform {

/// What a GDI font is made from.
struct FontSpec {
    std::int32_t height = 0;     ///< character height in pixels, without internal leading
    std::int32_t escapement = 0; ///< direction in tenths of a degree, counter-clockwise
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    std::u16string name;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

} // namespace platform
