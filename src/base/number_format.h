#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// Appends value / 100 in the pattern "0.00" with the given decimal separator; exact.
void AppendHundredths(std::string& out, std::int32_t value, std::string_view decimal);

/// Appends a plain decimal integer.
void AppendLong(std::string& out, std::int32_t value);

/// Appends value in the pattern "0." and so many zeros (without separator for none).
///
/// At most 15 significant digits are written, the rest are zeros; halves are rounded away from zero and zero
/// has no minus sign. Error 6 for what is not a finite number.
void AppendDecimals(std::string& out, double value, int decimals, std::string_view decimal);

} // namespace base
