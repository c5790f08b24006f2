#include "qsymbol/dialog/size_text.h"

#include "base/number_format.h"

namespace qsymbol {

std::u16string SizeText(std::int32_t length, double unitFactor, std::u16string_view decimal) {
    std::string plain;
    base::AppendDecimals(plain, static_cast<double>(length) / unitFactor, 2, ".");
    std::u16string text;
    for (const char c : plain) {
        if (c == '.')
            text += decimal;
        else
            text += static_cast<char16_t>(c);
    }
    return text;
}

} // namespace qsymbol
