#pragma once

#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

#include <string_view>

namespace qsymbol {

/// Fills the symbol from the import file at its path. Errors of FileSystem::Open and of ParseWsc.
void ReadFromWSCFile(Symbol& symbol, const FileEnvironment& environment);

/// Fills the symbol from an import file's bytes.
///
/// A line without a known keyword ends the import with a notice to the user and leaves the symbol empty; an
/// elliptic arc ends it with a notice and keeps what was read before. Neither is an error.
/// Error 3501 (source "CSymbol.ReadFromWSCFile") for the header line, 13 or 6 for a number, 9 without any
/// figure, for a continuation line ahead of any figure and for points outside the figure's list, 62 for no
/// bytes at all, 7 past the memory bound. The symbol then holds what was read up to the failing line.
void ParseWsc(Symbol& symbol, std::string_view bytes, const FileEnvironment& environment);

} // namespace qsymbol
