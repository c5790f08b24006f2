#pragma once

#include <optional>
#include <string_view>

namespace qsymbol {

/// The decimal separator that the numbers of a text symbol file have, ',' or '.'; nothing when there are only whole
/// ones. Of a number with both it is the later one.
std::optional<char> DecimalSeparatorOf(std::string_view bytes);

} // namespace qsymbol
