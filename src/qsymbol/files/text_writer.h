#pragma once

#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

#include <string>

namespace qsymbol {

/// Writes the symbol to the text file at its path, after asking before it replaces one.
///
/// Errors of ComposeText (the file is untouched then), of FileSystem::Open and of File::Write.
void Write2TxtFile(const Symbol& symbol, const FileEnvironment& environment);

/// The bytes of the symbol's text file. Error 9 for a circle, an arc or a text without a point, 91 for a text
/// without a font, 6 for an angle or a font size that is no finite number.
std::string ComposeText(const Symbol& symbol, const FileEnvironment& environment);

} // namespace qsymbol
