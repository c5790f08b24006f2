#pragma once

#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

#include <string_view>

namespace qsymbol {

/// Fills the symbol from the binary file at its path. Errors of FileSystem::Open and of ParseBinary.
void ReadFromBinFile(Symbol& symbol, const FileEnvironment& environment);

/// Fills the symbol from a binary file's bytes; what lies behind the last element is not looked at.
///
/// Error 3501 (source "CSymbol.ReadFromBinFile") without the tag, 62 when the bytes end too early, 9 for a
/// last element or point index that makes no list, 7 past the memory bound. The symbol then holds what was
/// read.
void ParseBinary(Symbol& symbol, std::string_view bytes, const FileEnvironment& environment);

} // namespace qsymbol
