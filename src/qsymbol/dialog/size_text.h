#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qsymbol {

/// A logical length as the user reads it: divided by the unit factor, in the pattern "0.00" with the given
/// decimal separator, halves away from zero. Error 6 when the quotient is no finite number.
std::u16string SizeText(std::int32_t length, double unitFactor, std::u16string_view decimal);

} // namespace qsymbol
