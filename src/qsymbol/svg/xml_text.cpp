#include "qsymbol/svg/xml_text.h"

#include "base/utf16_unit.h"
#include "base/utf8.h"

#include <cstddef>

namespace qsymbol {

namespace {

std::string_view EscapeOf(char16_t unit) {
    switch (unit) {
    case u'&': return "&amp;";
    case u'<': return "&lt;";
    case u'>': return "&gt;";
    case u'"': return "&quot;";
    case u'\'': return "&#39;";
    case u'\t':
    case u'\n':
    case u'\r': return " ";
    default: return {};
    }
}

} // namespace

void AppendXmlText(std::string& out, std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (const std::string_view escape = EscapeOf(unit); !escape.empty()) {
            out += escape;
        } else if (base::IsHighSurrogate(unit) && i + 1 < text.size() && base::IsLowSurrogate(text[i + 1])) {
            out += base::ToUtf8(text.substr(i, 2));
            ++i;
        } else if (unit < 0x80 && !base::IsControl(unit)) {
            out += static_cast<char>(unit);
        } else if (unit < 0xFFFE && !base::IsControl(unit) && !base::IsSurrogate(unit)) {
            out += base::ToUtf8(text.substr(i, 1));
        }
    }
}

std::string XmlText(std::u16string_view text) {
    std::string out;
    AppendXmlText(out, text);
    return out;
}

} // namespace qsymbol
