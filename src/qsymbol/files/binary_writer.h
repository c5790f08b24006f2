#pragma once

#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

#include <string>

namespace qsymbol {

/// Writes the symbol to the binary file at its path, after asking before it overwrites one.
///
/// An existing file is written over from its start; what lies behind the new content stays. Errors of
/// ComposeBinary (the file is untouched then), of FileSystem::Open and of File::Write.
void Write2BinFile(const Symbol& symbol, const FileEnvironment& environment);

/// The bytes of the symbol's binary file. Error 6 for a text over 65535 bytes or a font size over 32 bits.
std::string ComposeBinary(const Symbol& symbol, const FileEnvironment& environment);

} // namespace qsymbol
