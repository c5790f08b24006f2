#include "support/number_oracle.h"

#include "base/error.h"
#include "base/number_reader.h"
#include "qsymbol/files/wsc_fields.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <optional>

namespace support {

namespace {

constexpr int kTypeMismatch = 13;
constexpr int kOverflow = 6;

/// A value or the number of an error.
struct NumberOrError {
    double value = 0;
    int error = 0;

    friend bool operator==(const NumberOrError&, const NumberOrError&) = default;
};

NumberOrError NumberOf(const std::function<double()>& read) {
    try {
        return {read(), 0};
    } catch (const base::Error& error) {
        return {0, error.Number()};
    }
}

/// An e, perhaps a sign, and digits to the end.
bool IsExponent(const std::string& text) {
    const std::size_t digits = text.find_first_of("+-") == 1 ? 2 : 1;
    return (text[0] == 'e' || text[0] == 'E') && text.size() > digits &&
           text.find_first_not_of("0123456789", digits) == std::string::npos;
}

/// The text as the C library writes numbers; nothing when it has no plain form.
std::optional<std::string> Normalised(std::string text, const base::RegionalSettings& settings) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return std::nullopt;
    text = text.substr(first, text.find_last_not_of(" \t") - first + 1);
    std::string plain;
    bool digits = false;
    bool fraction = false;
    std::size_t at = 0;
    if (text[at] == '+' || text[at] == '-')
        plain += text[at++];
    for (; at < text.size(); ++at) {
        const std::string one(1, text[at]);
        if (text[at] >= '0' && text[at] <= '9') {
            plain += text[at];
            digits = true;
        } else if (one == settings.decimal && !fraction) {
            plain += '.';
            fraction = true;
        } else if (one != settings.thousands || !digits || fraction) {
            break;
        }
    }
    if (!digits)
        return std::nullopt;
    const std::string exponent = text.substr(at);
    if (!exponent.empty() && !IsExponent(exponent))
        return std::nullopt;
    return plain + exponent;
}

NumberOrError SlowDecimal(std::string_view text, const base::RegionalSettings& settings) {
    const std::optional<std::string> plain = Normalised(std::string(text), settings);
    if (!plain)
        return {0, kTypeMismatch};
    const double value = std::strtod(plain->c_str(), nullptr);
    return std::isfinite(value) ? NumberOrError{value, 0} : NumberOrError{0, kOverflow};
}

NumberOrError Rounded(NumberOrError number, double factor, double lowest, double highest) {
    if (number.error != 0)
        return number;
    const double whole = std::nearbyint(number.value * factor);
    return whole >= lowest && whole <= highest ? NumberOrError{whole + 0.0, 0} : NumberOrError{0, kOverflow};
}

std::string Disagreement(std::string_view text, const base::RegionalSettings& settings) {
    const base::NumberReader reader(settings);
    const NumberOrError decimal = SlowDecimal(text, settings);
    const NumberOrError read = NumberOf([&] { return reader.Decimal(text); });
    if (read != decimal || std::signbit(read.value) != std::signbit(decimal.value))
        return "Decimal";
    const std::optional<double> maybe = reader.TryDecimal(text);
    if (maybe.has_value() != (decimal.error == 0) || maybe.value_or(0) != decimal.value)
        return "TryDecimal";
    const NumberOrError length = Rounded(decimal, 100.0, INT32_MIN, INT32_MAX);
    if (NumberOf([&] { return reader.Hundredths(text); }) != length)
        return "Hundredths";
    const NumberOrError zero = decimal.error != 0 ? NumberOrError() : length;
    if (NumberOf([&] { return reader.HundredthsOrZero(text); }) != zero)
        return "HundredthsOrZero";
    if (NumberOf([&] { return reader.Long(text); }) != Rounded(decimal, 1.0, INT32_MIN, INT32_MAX))
        return "Long";
    if (NumberOf([&] { return reader.Integer(text); }) != Rounded(decimal, 1.0, INT16_MIN, INT16_MAX))
        return "Integer";
    return "";
}

/// A coordinate of an import file, between other fields and alone in its file.
std::string CoordinateDisagreement(std::string_view text, const base::RegionalSettings& settings) {
    if (text.find_first_of(" \r\n") != std::string_view::npos)
        return "";
    std::string comma(text);
    if (const std::size_t point = comma.find('.'); point != std::string::npos)
        comma[point] = ',';
    const double expected = SlowDecimal(comma, settings).value;
    qsymbol::WscNumbers numbers(settings);
    const std::string file = std::string(text) + " 12345\r\n" + std::string(text);
    qsymbol::WscFields first(std::string_view(file).substr(0, text.size() + 6), file, numbers);
    if (first.Coordinate() != expected || first.Coordinate() != 12345)
        return "Coordinate";
    qsymbol::WscFields last(std::string_view(file).substr(text.size() + 8), file, numbers);
    return last.Coordinate() == expected && !last.More() ? "" : "the last Coordinate";
}

} // namespace

std::string BrokenNumberPromise(std::string_view text) {
    static const std::array<base::RegionalSettings, 4> settings = {
        base::RegionalSettings{",", ".", nullptr}, base::RegionalSettings{".", ",", nullptr},
        base::RegionalSettings{",", "\xA0", nullptr}, base::RegionalSettings{".", "", nullptr}};
    for (const base::RegionalSettings& one : settings) {
        std::string broken = Disagreement(text, one);
        if (broken.empty())
            broken = CoordinateDisagreement(text, one);
        if (!broken.empty())
            return broken + " under decimal separator " + one.decimal;
    }
    return "";
}

} // namespace support
