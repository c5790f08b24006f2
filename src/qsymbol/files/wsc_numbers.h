#pragma once

#include "base/number_reader.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qsymbol {

/// Reads the numbers of an import file: the first "." counts as ",", then the user's settings decide.
class WscNumbers {
public:
    explicit WscNumbers(const base::RegionalSettings& settings)
        : numbers_(settings), pointIsDecimal_(settings.decimal == ",") {}

    /// True when the file's "." ends up as the user's decimal separator.
    bool PointIsDecimal() const { return pointIsDecimal_; }

    /// A coordinate in logical units, not rounded; 0 for what is no number or too large for a double.
    double Coordinate(std::string_view field);
    /// A whole number, rounded half to even into 32 bits. Error 13 or 6.
    std::int32_t Whole(std::string_view field);
    /// Hundredfold, rounded half to even: a line width. Error 13 or 6.
    std::int32_t Hundredths(std::string_view field);

private:
    /// The field with its first "." replaced; valid until the next call.
    std::string_view WithComma(std::string_view field);

    base::NumberReader numbers_;
    bool pointIsDecimal_;
    std::string scratch_; ///< kept between calls, so that a number costs no memory block of its own
};

} // namespace qsymbol
