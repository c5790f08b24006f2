#pragma once

#include "base/font_request.h"
#include "qmath/vector.h"

#include <cstdint>
#include <string_view>

namespace qsymbol {

/// Which point of a text's line stands on its anchor.
enum class TextSide { Left, Centre, Right };

/// A text of a vector picture as it has to be written. y grows downwards.
struct PictureText {
    qmath::Vector baseline; ///< of the point that `side` names, in logical units
    TextSide side = TextSide::Left;
    double degrees = 0;  ///< counter-clockwise
    double width = 0;    ///< estimated, logical units
    bool opaque = false; ///< its cell is painted in the background's colour first
    bool rightToLeft = false;
    std::int32_t colour = 0;                 ///< packed RGB
    const base::FontRequest* font = nullptr; ///< height is the em size in logical units
    std::u16string_view text;
};

} // namespace qsymbol
