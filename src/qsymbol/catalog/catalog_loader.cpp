#include "qsymbol/catalog/catalog_loader.h"

#include "base/letter_case.h"
#include "qsymbol/catalog/load_symbol_file.h"

namespace qsymbol {

namespace {

/// The folder's path without one separator at its end, unless it is the root of a drive.
std::u16string WithoutTrailingSeparator(std::u16string_view folder) {
    const bool separator = folder.ends_with(u'\\') || (folder.size() > 1 && folder.ends_with(u'/'));
    if (separator && !folder.substr(0, folder.size() - 1).ends_with(u':'))
        folder.remove_suffix(1);
    return std::u16string(folder);
}

bool IsBinarySymbol(const base::FolderEntry& entry) {
    const std::u16string_view name = entry.Name();
    return name.size() >= 4 && name[name.size() - 4] == u'.' &&
           base::LowerCase(name.substr(name.size() - 3)) == u"syb";
}

/// The key under which a list would name this file: without dot and three-letter extension, upper case.
std::u16string ListName(const base::FolderEntry& entry) {
    return base::UpperCase(entry.Name().substr(0, entry.Name().size() - 4));
}

} // namespace

void ReadKatalog(std::u16string_view folder, CatalogSink& sink, const FileEnvironment& environment) {
    const std::u16string path = WithoutTrailingSeparator(folder);
    if (!environment.files.FolderExists(path))
        return;
    std::vector<base::FolderEntry> entries = environment.files.ListFiles(environment.files.FullPath(path));
    for (base::FolderEntry& entry : entries)
        if (IsBinarySymbol(entry) && !LoadSymbolFile(std::move(entry.path), sink, environment))
            return;
}

bool ReadListe(std::u16string_view folder, const NameList& list, CatalogSink& sink,
               const FileEnvironment& environment) {
    const std::u16string path = WithoutTrailingSeparator(folder);
    if (!environment.files.FolderExists(path))
        return true;
    std::vector<base::FolderEntry> entries = environment.files.ListFiles(environment.files.FullPath(path));
    if (static_cast<double>(entries.size()) * 0.8 < list.count())
        return false;
    for (base::FolderEntry& entry : entries) {
        const bool wanted = IsBinarySymbol(entry) && list.contains(ListName(entry));
        if (wanted && !LoadSymbolFile(std::move(entry.path), sink, environment))
            break;
    }
    return true;
}

} // namespace qsymbol
