#pragma once

#include "qsymbol/check/finding.h"
#include "qsymbol/model/symbol.h"

#include <vector>

namespace qsymbol {

/// What is wrong with a symbol that could be read, all of it warnings: by kind, within a kind by element.
///
/// "empty", "undefined-element", "degenerate-element", "zero-size", "size-mismatch", "reference-far",
/// "colour-not-in-table", "text-line-break", "dxf-text-size".
std::vector<Finding> CheckSymbol(const Symbol& symbol);

} // namespace qsymbol
