#include "base/letter_case.h"

#include "base/utf16_unit.h"

#include <clocale>
#include <cwctype>

namespace base {

namespace {

/// A locale with Unicode letter tables; nullptr (then only ASCII letters change) where none is installed.
locale_t UnicodeLocale() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

/// The text with the ASCII letters from `first` on moved by `step`, and all beyond ASCII as the tables say.
template <class Map>
std::u16string Mapped(std::u16string_view text, char16_t first, int step, Map map) {
    std::u16string result(text);
    for (char16_t& unit : result) {
        if (unit < 0x80) {
            if (unit >= first && unit < first + 26)
                unit = static_cast<char16_t>(unit + step);
            continue;
        }
        if (base::IsSurrogate(unit))
            continue;
        const auto mapped = map(static_cast<wint_t>(unit), UnicodeLocale());
        if (mapped < 0x10000)
            unit = static_cast<char16_t>(mapped);
    }
    return result;
}

} // namespace

std::u16string UpperCase(std::u16string_view text) {
    return Mapped(text, u'a', u'A' - u'a', towupper_l);
}

std::u16string LowerCase(std::u16string_view text) {
    return Mapped(text, u'A', u'a' - u'A', towlower_l);
}

} // namespace base
