#include "qsymbol/drawing/drawing_text.h"

#include "base/utf16_unit.h"
#include "qsymbol/export/dxf_escape.h"

#include <cstddef>

namespace qsymbol {

namespace {

constexpr std::size_t kLongestName = 200;
constexpr std::u16string_view kIllegal = u"<>/\\\":;?*|,=`";

/// Whether a reader would take the beginning of a text for an escape.
bool ReadsAsEscape(std::u16string_view text) {
    return text.starts_with(u"\\U+") || text.starts_with(u"\\u+");
}

} // namespace

std::string DrawingText(std::u16string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (base::IsControl(unit) || unit == u'^' || unit > 0xFF || ReadsAsEscape(text.substr(i)))
            out += DxfEscape(unit);
        else
            out += static_cast<char>(static_cast<unsigned char>(unit));
    }
    return out;
}

std::string ShownDrawingText(std::u16string_view text) {
    std::u16string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool inRow = (i > 0 && text[i - 1] == u'%') || (i + 1 < text.size() && text[i + 1] == u'%');
        plain += text[i] == u'%' && inRow ? u"%%%" : std::u16string_view(text).substr(i, 1);
    }
    return DrawingText(plain);
}

std::u16string LegalDxfName(std::u16string_view name) {
    std::u16string legal(name.substr(0, kLongestName));
    for (char16_t& unit : legal)
        if (base::IsControl(unit) || base::IsSurrogate(unit) || unit == u'^' ||
            kIllegal.find(unit) != std::u16string_view::npos)
            unit = u'_';
    const std::size_t first = legal.find_first_not_of(u' ');
    if (first == std::u16string::npos)
        return u"_";
    return legal.substr(first, legal.find_last_not_of(u' ') + 1 - first);
}

} // namespace qsymbol
