#pragma once

#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

#include <string>
#include <string_view>

namespace qsymbol {

/// Fills the symbol from the file at its path; the extension chooses the format (syt, syb, wsc).
///
/// Error 3501 for any other extension, the symbol is then untouched. After any other error (those of
/// FileSystem::Open, File::Read and the format) the symbol holds what was read before it, never its old
/// content. A notice of the format is shown to the user.
void ReadFromFile(Symbol& symbol, const FileEnvironment& environment);

/// Writes the symbol to the file at its path; the extension chooses the format (syt, syb).
///
/// Asks before it overwrites a file; No ends the write without an error. Error 3503 for any other extension;
/// errors of the format leave the file untouched, then those of FileSystem::Open and File::Write.
void Write2File(const Symbol& symbol, const FileEnvironment& environment);

/// ReadFromFile without a file: fills the symbol from the bytes that a file at its path would have. Gives the
/// notice that the user is to see, "" for none.
std::u16string DecodeSymbol(Symbol& symbol, std::string_view bytes, const FormatRules& rules);

/// Write2File without a file: the bytes that the symbol has at this path. Error 3503 or the format's.
std::string EncodeSymbol(const Symbol& symbol, std::u16string_view path, const FormatRules& rules);

} // namespace qsymbol
