#pragma once

#include "cli/run.h"
#include "cli/source_file.h"

#include <string>
#include <vector>

namespace cli {

/// The symbol files that paths stand for: files as they are, of folders the files with an extension that can
/// be read, in the order of their names, then, with -r, those of the subfolders. A file that is met again, whatever
/// the way to it, is left out.
///
/// What cannot be used stands in the list with its failure: 53 missing, 3503 no symbol file's extension, 75
/// no file, 70 a folder that must not be read, 52 a name that is not made of characters.
std::vector<SourceFile> SymbolFiles(const std::vector<std::string>& paths, const Run& run);

} // namespace cli
