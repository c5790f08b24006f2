#pragma once

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
    std::int32_t Hundredths(std::string_view text) const;
    /// Hundredths, but 0 for what is no number or too large for a double. Error 6 outside 32 bits.
    std::int32_t HundredthsOrZero(std::string_view text) const;
    /// A whole number, rounded half to even into 32 bits. Error 13 or 6.
    std::int32_t Long(std::string_view text) const;
    /// A whole number, rounded half to even into 16 bits. Error 13 or 6.
    std::int16_t Integer(std::string_view text) const;

private:
    /// The value digits / 10^decimals, exactly; at most 15 digits.
    struct FixedPoint {
        std::int64_t digits;
        int decimals;
        bool negative;
    };

    /// The form nearly all numbers have: a minus sign, digits, the decimal separator, digits. False for any
    /// other.
    bool ScanFixed(std::string_view text, FixedPoint& number) const;
    static double ValueOf(const FixedPoint& number);
    /// A hundredfold number of up to two decimals, which is whole; nothing for more decimals. Error 6.
    static std::optional<std::int32_t> FewDecimals(const FixedPoint& number);

    std::optional<double> Parse(std::string_view text) const;
    std::optional<double> TryPlain(std::string_view text) const;

    RegionalSettings settings_;
    int decimal_;   ///< the separator's byte, -1 when it is not a single one
    int thousands_; ///< likewise
};

} // namespace base
