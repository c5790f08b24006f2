#include "support/number_settings.h"

#include <windows.h>

#include <oleauto.h>

namespace support {

namespace {

std::wstring Get(LCTYPE type) {
    wchar_t text[16] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, 16);
    return text;
}

void Set(const std::wstring& decimal, const std::wstring& thousands) {
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, decimal.c_str());
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, thousands.c_str());
    // The automation run-time accepts those of money as well.
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SMONDECIMALSEP, decimal.c_str());
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SMONTHOUSANDSEP, thousands.c_str());
    // Wine's automation remembers the separators of the last locale it was asked for: ask for another.
    double ignored = 0;
    std::wstring one = L"1";
    VarR8FromStr(one.data(), MAKELCID(MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH), SORT_DEFAULT),
                 LOCALE_NOUSEROVERRIDE, &ignored);
}

} // namespace

NumberSettings::NumberSettings(const std::wstring& decimal, const std::wstring& thousands)
    : decimal_(Get(LOCALE_SDECIMAL)), thousands_(Get(LOCALE_STHOUSAND)) {
    Set(decimal, thousands);
}

NumberSettings::~NumberSettings() {
    Set(decimal_, thousands_);
}

} // namespace support
