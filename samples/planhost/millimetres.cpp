#include "millimetres.h"

#include <cstdlib>

namespace {

constexpr std::size_t kDecimals = 2;
constexpr std::size_t kMostDigits = 8; // of the whole millimetres

bool AreDigits(std::wstring_view text) {
    return text.find_first_not_of(L"0123456789") == std::wstring_view::npos;
}

std::wstring_view Trimmed(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L" \t");
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

} // namespace

std::wstring MillimetresText(long units, wchar_t decimalPoint) {
    const long size = std::labs(units);
    std::wstring text = (units < 0 ? L"-" : L"") + std::to_wstring(size / kUnitsPerMillimetre);
    if (const long part = size % kUnitsPerMillimetre; part != 0) {
        text += decimalPoint;
        text += static_cast<wchar_t>(L'0' + part / 10);
        if (part % 10 != 0)
            text += static_cast<wchar_t>(L'0' + part % 10);
    }
    return text;
}

std::optional<long> UnitsFromText(std::wstring_view text, wchar_t decimalPoint) {
    text = Trimmed(text);
    const bool isNegative = text.starts_with(L'-');
    if (isNegative || text.starts_with(L'+'))
        text.remove_prefix(1);
    const std::size_t point = text.find(decimalPoint);
    const std::wstring_view whole = text.substr(0, point);
    const std::wstring_view part = point == std::wstring_view::npos ? L"0" : text.substr(point + 1);
    if (whole.empty() || whole.size() > kMostDigits || part.empty() || part.size() > kDecimals ||
        !AreDigits(whole) || !AreDigits(part))
        return std::nullopt;
    long units = 0;
    for (const wchar_t digit : whole)
        units = units * 10 + (digit - L'0');
    for (std::size_t i = 0; i < kDecimals; ++i)
        units = units * 10 + (i < part.size() ? part[i] - L'0' : 0);
    if (units > kLongestMillimetres * kUnitsPerMillimetre)
        return std::nullopt;
    return isNegative ? -units : units;
}
