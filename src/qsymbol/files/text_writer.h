#pragma once

#include "qsymbol/files/format_rules.h"
#include "qsymbol/model/symbol.h"

#include <string>

namespace qsymbol {

/// The bytes of the symbol's text file. What would not read back is refused: error 9 for an element without a
/// point and for an arc with more than three, 91 for a text without a font, 6 for an angle that is no finite
/// number and a font size outside 16 bits, 5 for a line break in a text and for a font name with a line break
/// or ";".
std::string ComposeText(const Symbol& symbol, const FormatRules& rules);

} // namespace qsymbol
