#pragma once

#include "qsymbol/files/format_rules.h"
#include "qsymbol/model/symbol.h"

#include <string>

namespace qsymbol {

/// The bytes of the symbol's binary file. Error 6 for a text over 65535 bytes or a font size over 32 bits.
std::string ComposeBinary(const Symbol& symbol, const FormatRules& rules);

} // namespace qsymbol
