#include "platform/win32/user_settings.h"

#include "platform/wide/wide_text.h"
#include "platform/win32/ansi_code_page.h"

#include <windows.h>

#include <oleauto.h>

#include <limits>

namespace platform {

namespace {

/// A separator in the bytes of files; "" when there is none or the code page lacks it.
std::string Separator(LCTYPE type) {
    wchar_t text[8] = {};
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, 8);
    if (length <= 1)
        return {};
    const std::u16string_view separator = Utf16({text, static_cast<std::size_t>(length - 1)});
    std::string bytes = AnsiCodePage().Encode(separator);
    return AnsiCodePage().Decode(bytes) == separator ? bytes : std::string();
}

/// Numbers cannot be without one.
std::string DecimalSeparator() {
    const std::string separator = Separator(LOCALE_SDECIMAL);
    return separator.empty() ? "." : separator;
}

/// What the automation run-time makes of a text; infinity for a number out of range.
std::optional<double> ParseAsAutomation(std::string_view text) {
    std::u16string wide = AnsiCodePage().Decode(text);
    double value = 0;
    const HRESULT status = VarR8FromStr(Wide(wide.data()), LOCALE_USER_DEFAULT, 0, &value);
    if (status == DISP_E_OVERFLOW)
        return std::numeric_limits<double>::infinity();
    return SUCCEEDED(status) ? std::optional<double>(value) : std::nullopt;
}

} // namespace

base::RegionalSettings UserSettings() {
    return {.decimal = DecimalSeparator(),
            .thousands = Separator(LOCALE_STHOUSAND),
            .systemParse = ParseAsAutomation};
}

} // namespace platform
