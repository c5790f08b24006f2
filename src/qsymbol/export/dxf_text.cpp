#include "qsymbol/export/dxf_text.h"

#include <algorithm>
#include <cstddef>

namespace qsymbol {

namespace {

/// The smallest line buffer among common readers takes 1023 bytes with the line's end.
constexpr std::size_t kLongestValue = 1020;

constexpr char16_t kFirstPrintable = 0x20;
constexpr char16_t kDelete = 0x7F;
constexpr char16_t kFirstBehindControls = 0xA0;

bool IsPlain(char16_t unit) {
    return unit >= kFirstPrintable && unit < kDelete && unit != u'^';
}

std::string InHexadecimal(char16_t unit) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string escape = "\\U+";
    for (int shift = 12; shift >= 0; shift -= 4)
        escape += kDigits[static_cast<std::size_t>(unit >> shift & 0xF)];
    return escape;
}

std::string Escaped(char16_t unit, const base::CodePage& codePage) {
    if (unit < kFirstPrintable)
        return {'^', static_cast<char>(unit + '@')};
    if (unit == u'^')
        return "^ ";
    const std::u16string_view alone(&unit, 1);
    if (unit >= kFirstBehindControls) {
        // A code page says what it lacks only by what comes back.
        std::string bytes = codePage.Encode(alone);
        if (codePage.Decode(bytes) == alone)
            return bytes;
    }
    return InHexadecimal(unit);
}

} // namespace

std::string DxfText(std::u16string_view text, const base::CodePage& codePage) {
    std::string value;
    value.reserve(std::min(text.size(), kLongestValue));
    for (const char16_t unit : text) {
        if (IsPlain(unit)) {
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
