#include "platform/posix/environment_settings.h"

#include "platform/posix/fixed_regional_settings.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdlib>
#include <langinfo.h>
#include <optional>
#include <string_view>

namespace platform {

namespace {

const char* LocaleName() {
    for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"})
        if (const char* value = std::getenv(variable); value != nullptr && *value != '\0')
            return value;
    return "C";
}

/// What the installed locale of that name says; nothing when there is none.
std::optional<bool> InstalledUsesComma(const char* name) {
    const locale_t locale = newlocale(LC_NUMERIC_MASK, name, nullptr);
    if (locale == nullptr)
        return std::nullopt;
    const bool comma = nl_langinfo_l(RADIXCHAR, locale) == std::string_view(",");
    freelocale(locale);
    return comma;
}

template <std::size_t N>
bool Holds(const std::array<std::string_view, N>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// For locales that are not installed: languages with a decimal comma, and countries that have a point all
/// the same.
bool CommonlyUsesComma(std::string_view name) {
    constexpr std::array<std::string_view, 38> kComma = {
        "af", "sq", "uk", "vi", "be", "bg", "bs", "ca", "cs", "da", "de", "el", "es",
        "et", "eu", "fi", "fr", "gl", "hr", "hu", "id", "is", "it", "lt", "lv", "mk",
        "nb", "nl", "nn", "pl", "pt", "ro", "ru", "sk", "sl", "sr", "sv", "tr"};
    constexpr std::array<std::string_view, 6> kPoint = {"CH", "LI", "MX", "US", "GT", "PE"};
    name = name.substr(0, name.find_first_of(".@"));
    const std::size_t underscore = name.find('_');
    const std::string_view language = name.substr(0, underscore);
    const std::string_view country =
        underscore == std::string_view::npos ? std::string_view() : name.substr(underscore + 1);
    return Holds(kComma, language) && !Holds(kPoint, country);
}

} // namespace

base::RegionalSettings EnvironmentSettings() {
    const char* const name = LocaleName();
    return InstalledUsesComma(name).value_or(CommonlyUsesComma(name)) ? GermanSettings() : EnglishSettings();
}

} // namespace platform
