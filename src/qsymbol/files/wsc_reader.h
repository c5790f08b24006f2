#pragma once

#include "qsymbol/files/format_rules.h"
#include "qsymbol/model/symbol.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qsymbol {

/// Fills a symbol without content from an import file's bytes.
///
/// A line without a known keyword ends the import with a notice and leaves the symbol empty; an elliptic arc
/// ends it with a notice and keeps what was read before. Neither is an error.
/// Error 3501 (source "CSymbol.ReadFromWSCFile") for the header line, 13 or 6 for a number, 9 without any
/// figure, for a continuation line ahead of any figure and for points outside the figure's list, 62 for no
/// bytes at all, 7 past the memory bound. The symbol then holds what was read up to the failing line.
std::u16string ParseWsc(Symbol& symbol, std::string_view bytes, const FormatRules& rules);

/// Where an import file of this beginning ends for its reader: here, when a line cannot be processed.
std::uint64_t WscReach(std::string_view beginning);

} // namespace qsymbol
