#pragma once

#include "base/font_request.h"
#include "qsymbol/drawing/drawing_names.h"
#include "qsymbol/drawing/dxf_tags.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace qsymbol {

/// The text styles of a drawing: one for each font in each of its four styles.
class TextStyles {
public:
    TextStyles() { names_.Take(u"Standard"); }

    /// The encoded name of the style for a font. Underline and strike-out are no matter of the style.
    const std::string& StyleFor(const base::FontRequest& font);

    struct Style {
        std::string name;
        std::string family;
        std::string file;
        bool bold = false;
        bool italic = false;
        bool fixedPitch = false;
        bool serif = false;
    };
    /// In the order in which they were asked for; "Standard" is not among them.
    const std::vector<Style>& All() const { return styles_; }

private:
    using Key = std::tuple<std::u16string, bool, bool>; ///< family in upper case, bold, italic

    DrawingNames names_;
    std::map<Key, std::size_t> known_;
    std::vector<Style> styles_;
};

/// The number in which a style's extended data says what its font is like.
std::int64_t FontFlags(const TextStyles::Style& style);

} // namespace qsymbol
