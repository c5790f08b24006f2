#include "qsymbol/drawing/dxf_text.h"

#include <cstddef>

namespace qsymbol {

namespace {

constexpr std::size_t kLongestName = 200;
constexpr std::u16string_view kIllegal = u"<>/\\\":;?*|,=`";

void AppendEscape(std::string& out, char16_t unit) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    out += "\\U+";
    for (const int shift : {12, 8, 4, 0})
        out += kDigits[unit >> shift & 15U];
}

bool IsControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

/// Whether a reader would take the beginning of a text for an escape.
bool ReadsAsEscape(std::u16string_view text) {
    return text.starts_with(u"\\U+") || text.starts_with(u"\\u+");
}

} // namespace

std::string DxfText(std::u16string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (unit < 0x20) {
            out += '^';
            out += static_cast<char>(unit + '@');
        } else if (unit == u'^') {
            out += "^ ";
        } else if (IsControl(unit) || unit > 0xFF || ReadsAsEscape(text.substr(i))) {
            AppendEscape(out, unit);
        } else {
            out += static_cast<char>(static_cast<unsigned char>(unit));
        }
    }
    return out;
}

std::string DxfShownText(std::u16string_view text) {
    std::u16string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool inRow = (i > 0 && text[i - 1] == u'%') || (i + 1 < text.size() && text[i + 1] == u'%');
        plain += text[i] == u'%' && inRow ? u"%%%" : std::u16string_view(text).substr(i, 1);
    }
    return DxfText(plain);
}

std::u16string LegalDxfName(std::u16string_view name) {
    std::u16string legal(name.substr(0, kLongestName));
    for (char16_t& unit : legal)
        if (IsControl(unit) || (unit & 0xF800) == 0xD800 || unit == u'^' ||
            kIllegal.find(unit) != std::u16string_view::npos)
            unit = u'_';
    const std::size_t first = legal.find_first_not_of(u' ');
    if (first == std::u16string::npos)
        return u"_";
    return legal.substr(first, legal.find_last_not_of(u' ') + 1 - first);
}

} // namespace qsymbol
