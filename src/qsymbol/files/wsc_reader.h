#pragma once

#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// Refuses: the import format cannot be read yet. Raises status 0x80004001 and leaves the symbol empty.
void ReadFromWSCFile(Symbol& symbol, const FileEnvironment& environment);

} // namespace qsymbol
