#include "qsymbol/export/dxf_escape.h"

#include <string_view>

namespace qsymbol {

std::string DxfEscape(char16_t unit) {
    constexpr char16_t kFirstPrintable = 0x20;
    if (unit < kFirstPrintable)
        return {'^', static_cast<char>(unit + '@')};
    if (unit == u'^')
        return "^ ";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string escape = "\\U+";
    for (const int shift : {12, 8, 4, 0})
        escape += kDigits[unit >> shift & 15U];
    return escape;
}

} // namespace qsymbol
