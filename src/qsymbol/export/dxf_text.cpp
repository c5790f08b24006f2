#include "qsymbol/export/dxf_text.h"

#include "base/utf16_unit.h"
#include "qsymbol/export/dxf_escape.h"

#include <algorithm>
#include <cstddef>

namespace qsymbol {

namespace {

/// The smallest line buffer among common readers takes 1023 bytes with the line's end.
constexpr std::size_t kLongestValue = 1020;

constexpr char16_t kFirstBehindAscii = 0x80;

std::string Escaped(char16_t unit, const base::CodePage& codePage) {
    const std::u16string_view alone(&unit, 1);
    if (!base::IsControl(unit) && unit != u'^') {
        // A code page says what it lacks only by what comes back.
        std::string bytes = codePage.Encode(alone);
        if (codePage.Decode(bytes) == alone)
            return bytes;
    }
    return DxfEscape(unit);
}

} // namespace

std::string DxfText(std::u16string_view text, const base::CodePage& codePage) {
    std::string value;
    value.reserve(std::min(text.size(), kLongestValue));
    for (const char16_t unit : text) {
        const bool isPlain = unit < kFirstBehindAscii && !base::IsControl(unit) && unit != u'^';
        if (isPlain) {
            if (value.size() == kLongestValue)
                return value;
            value += static_cast<char>(unit);
            continue;
        }
        const std::string escaped = Escaped(unit, codePage);
        if (value.size() + escaped.size() > kLongestValue)
            return value;
        value += escaped;
    }
    return value;
}

} // namespace qsymbol
