#pragma once

#include "qsymbol/files/format_rules.h"
#include "qsymbol/model/symbol.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qsymbol {

/// Fills a symbol without content from a binary file's bytes; what lies behind the last element is not looked
/// at. Never a notice.
///
/// Error 3501 (source "CSymbol.ReadFromBinFile") without the tag, 62 when the bytes end too early, 9 for
/// a last element or point index that makes no list, 7 past the memory bound. The symbol then holds what
/// was read.
std::u16string ParseBinary(Symbol& symbol, std::string_view bytes, const FormatRules& rules);

/// Where the last element of a binary file of this beginning ends, or where it is found to be broken; more
/// than the beginning has when that cannot be seen yet.
std::uint64_t BinaryReach(std::string_view beginning);

} // namespace qsymbol
