#pragma once

#include "base/digits.h"
#include "base/regional_settings.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace base {

/// Reads numbers as the user's regional settings write them.
///
/// Plain forms (blanks around, a sign, digits with thousands separators, the decimal separator, an exponent)
/// are read here; anything else is left to the system.
class NumberReader {
public:
    explicit NumberReader(const RegionalSettings& settings);

    /// The value, or nothing when the text is no number or too large for a double.
    std::optional<double> TryDecimal(std::string_view text) const;
    /// Error 13 when the text is no number, 6 when it is too large for a double.
    double Decimal(std::string_view text) const;
    /// Decimal times 100, rounded half to even: a length of a text file in logical units. Error 13 or 6.
    std::int32_t Hundredths(std::string_view text) const {
        std::int32_t value = 0;
        return TwoDecimals(text, value) ? value : AnyHundredths(text);
    }
    /// Hundredths, but 0 for what is no number or too large for a double. Error 6 outside 32 bits.
    std::int32_t HundredthsOrZero(std::string_view text) const {
        std::int32_t value = 0;
        return TwoDecimals(text, value) ? value : AnyHundredthsOrZero(text);
    }
    /// A whole number, rounded half to even into 32 bits. Error 13 or 6.
    std::int32_t Long(std::string_view text) const;
    /// A whole number, rounded half to even into 16 bits. Error 13 or 6.
    std::int16_t Integer(std::string_view text) const;

private:
    /// The form in which lengths are written: a minus sign, up to eight digits, the separator, two digits.
    /// False for every other form and outside 32 bits.
    bool TwoDecimals(std::string_view text, std::int32_t& hundredths) const {
        const std::size_t size = text.size();
        if (size < 4 || static_cast<unsigned char>(text[size - 3]) != decimal_)
            return false;
        const bool negative = text[0] == '-';
        const std::size_t sign = negative ? 1 : 0;
        const std::int64_t whole = DigitsValue(text.data() + sign, size - 3 - sign);
        const unsigned tens = static_cast<unsigned char>(text[size - 2]) - unsigned{'0'};
        const unsigned ones = static_cast<unsigned char>(text[size - 1]) - unsigned{'0'};
        const std::int64_t value = whole * 100 + std::int64_t{tens} * 10 + ones;
        hundredths = static_cast<std::int32_t>(negative ? -value : value);
        return whole >= 0 && tens <= 9 && ones <= 9 && value <= INT32_MAX;
    }
    std::int32_t AnyHundredths(std::string_view text) const;
    std::int32_t AnyHundredthsOrZero(std::string_view text) const;
    std::optional<double> Parse(std::string_view text) const;
    std::optional<double> TryPlain(std::string_view text) const;

    RegionalSettings settings_;
    int decimal_;   ///< the separator's byte, -1 when it is not a single one
    int thousands_; ///< likewise
};

} // namespace base
