#pragma once

#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// Fills the symbol from the file at its path; the extension chooses the format (syt, syb, wsc).
///
/// Error 3501 for any other extension, the symbol is then untouched. After any other error the symbol holds
/// what was read before it, never its old content.
void ReadFromFile(Symbol& symbol, const FileEnvironment& environment);

/// Writes the symbol to the file at its path; the extension chooses the format (syt, syb).
///
/// Asks before it overwrites a file; No ends the write without an error. Error 3503 for any other extension.
void Write2File(const Symbol& symbol, const FileEnvironment& environment);

} // namespace qsymbol
