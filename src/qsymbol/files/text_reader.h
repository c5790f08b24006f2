#pragma once

#include "qsymbol/files/format_rules.h"
#include "qsymbol/model/symbol.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qsymbol {

/// Fills a symbol without content from a text file's bytes; without any line that is not empty it stays
/// empty. Never a notice.
///
/// Errors 3501 and 3502 (source "CSymbol.ReadFromTxtFile") for the header line, 13 or 6 for a number, 9 for a
/// count of 0 or less and for more elements or points than were counted, 7 past the memory bound. The symbol
/// then holds what was read up to the failing line.
std::u16string ParseText(Symbol& symbol, std::string_view bytes, const FormatRules& rules);

/// Where a text file of this beginning ends for its reader: here, when it is no symbol.
std::uint64_t TextReach(std::string_view beginning);

} // namespace qsymbol
