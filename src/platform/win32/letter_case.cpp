#include "base/letter_case.h"

#include "base/checked.h"
#include "platform/wide/wide_text.h"

#include <windows.h>

namespace base {

namespace {

std::u16string Mapped(std::u16string_view text, DWORD flags) {
    std::u16string result(text);
    if (!text.empty())
        LCMapStringEx(LOCALE_NAME_INVARIANT, flags, platform::Wide(text.data()), Narrow<int>(text.size()),
                      platform::Wide(result.data()), Narrow<int>(result.size()), nullptr, nullptr, 0);
    return result;
}

} // namespace

std::u16string UpperCase(std::u16string_view text) {
    return Mapped(text, LCMAP_UPPERCASE);
}

std::u16string LowerCase(std::u16string_view text) {
    return Mapped(text, LCMAP_LOWERCASE);
}

} // namespace base
