#pragma once

#include "qsymbol/catalog/catalog_sink.h"
#include "qsymbol/files/file_environment.h"

#include <functional>
#include <string>
#include <string_view>

namespace qsymbol {

/// Loads every binary symbol file of the folder; symbols get their full paths. A folder that does not exist loads nothing.
///
/// A file that fails is shown to the user, who aborts, retries or ignores it; other errors are thrown.
void ReadKatalog(std::u16string_view folder, CatalogSink& sink, const FileEnvironment& environment);

/// The host's list of names: how many there are, and whether a name (upper case) is one of them. Both ask the
/// host, so they are called only when the answer counts.
struct NameList {
    std::function<std::int32_t()> count;
    std::function<bool(const std::u16string& name)> contains;
};

/// Loads the binary symbol files of the folder whose names are in the list; symbols get their full paths.
///
/// False, with nothing loaded, when the list is longer than 0.8 times the number of files in the folder.
bool ReadListe(std::u16string_view folder, const NameList& list, CatalogSink& sink,
               const FileEnvironment& environment);

} // namespace qsymbol
