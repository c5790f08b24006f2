#pragma once

#include "qsymbol/files/format_rules.h"
#include "qsymbol/model/symbol.h"

#include <string>

namespace qsymbol {

/// The bytes of the symbol's text file. Error 9 for a circle, an arc or a text without a point, 91 for a text
/// without a font, 6 for an angle or a font size that is no finite number.
std::string ComposeText(const Symbol& symbol, const FormatRules& rules);

} // namespace qsymbol
