#pragma once

#include "qsymbol/catalog/catalog_sink.h"
#include "qsymbol/files/file_environment.h"

#include <string>

namespace qsymbol {

/// Reads one symbol file into the collection. False when the user wants no further file to be read.
///
/// A file that does not read is shown to the user: Abort gives false, Retry reads it again, Ignore gives
/// true. Errors of the collection (457) are thrown.
bool LoadSymbolFile(std::u16string path, CatalogSink& sink, const FileEnvironment& environment);

} // namespace qsymbol
