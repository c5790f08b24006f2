#pragma once

#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

#include <string_view>

namespace qsymbol {

/// Fills the symbol from the text file at its path. Errors of FileSystem::Open and of ParseText.
void ReadFromTxtFile(Symbol& symbol, const FileEnvironment& environment);

/// Fills the symbol from a text file's bytes; without any line that is not empty it stays empty.
///
/// Errors 3501 and 3502 (source "CSymbol.ReadFromTxtFile") for the header line, 13 or 6 for a number, 9 for a
/// count of 0 or less and for more elements or points than were counted, 7 past the memory bound. The symbol
/// then holds what was read up to the failing line.
void ParseText(Symbol& symbol, std::string_view bytes, const FileEnvironment& environment);

} // namespace qsymbol
