#pragma once

#include "base/font_request.h"

#include <string_view>

namespace base {

/// The box of a line of text, in the unit of the font's height.
struct TextSize {
    double width = 0;
    double ascent = 0;  ///< above the base line
    double descent = 0; ///< below it
};

/// Seam: how large the system's fonts set a text.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    /// The escapement of the request does not count.
    virtual TextSize Measure(const FontRequest& font, std::u16string_view text) const = 0;
};

} // namespace base
