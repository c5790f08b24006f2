#pragma once

#include <string>

namespace qsymbol {

/// Appends a number with at most `decimals` decimals and without needless zeros; "." separates, and
/// zero has no minus sign.
void AppendShort(std::string& out, double value, int decimals);

} // namespace qsymbol
