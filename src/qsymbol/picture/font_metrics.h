#pragma once

#include "base/font_request.h"

#include <string_view>

namespace qsymbol {

/// The measures of a font that place a text, as parts of its em size.
struct FontMetrics {
    std::u16string_view family; ///< in lower case
    double ascent = 0;          ///< from the base line to the top of the cell
    double descent = 0;         ///< from the base line to the bottom of the cell
    double capital = 0;         ///< height of the capital letters
    bool serif = false;
    bool fixedPitch = false;
    std::string_view file;            ///< the font file without style and extension
    std::string_view boldFile = "bd"; ///< what the file's name has more in bold, and in bold italic
    std::string_view boldItalicFile = "bi";
};

/// The measures of a family by its name in any case; those of Arial for a family that is not known.
const FontMetrics& MetricsOf(std::u16string_view family);

/// Estimated width of a line of text, in the unit of the font's height: exact to a few percent for the
/// letters of Western European languages in Arial, an estimate for everything else.
double TextWidth(std::u16string_view text, const base::FontRequest& font);

} // namespace qsymbol
