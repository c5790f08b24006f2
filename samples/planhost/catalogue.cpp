#include "catalogue.h"

#include "catalogue_entries.h"
#include "text.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace fs = std::filesystem;

namespace {

void RequireFolder(const fs::path& folder) {
    if (!fs::is_directory(folder))
        throw Failure{L"Ordner nicht gefunden: " + folder.wstring()};
}

/// What the library reads a file as follows from its extension, in any case.
bool HasExtension(const fs::path& file, const wchar_t* extension) {
    return lstrcmpiW(file.extension().c_str(), extension) == 0;
}

/// A symbol of which the import was broken off has no size.
bool IsEmpty(_CSymbol& symbol) {
    LONG width = 0;
    Check(symbol.get_Width(&width));
    return width == 0;
}

/// The path is the symbol's own property; reading and writing take it from there.
void SetPath(_CSymbol& symbol, const fs::path& file) {
    Check(symbol.put_FilePath(Bstr(fs::absolute(file).wstring()).Get()));
}

/// The folder and all folders in it. Linked ones are left alone: they may lead back to where they are.
std::vector<fs::path> WithSubfolders(const fs::path& folder) {
    std::vector<fs::path> folders{folder};
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_directory() && !entry.is_symlink())
            folders.push_back(entry.path());
    }
    return folders;
}

/// One collection of all symbols, in the order of their names. A plan knows a symbol by its name alone, so that
/// no name may come twice.
Ptr<_CSymbolColl> InOrder(std::vector<CatalogueEntry>& entries) {
    constexpr HRESULT kDuplicateKey = static_cast<HRESULT>(0x800A0000 + 457);
    Ptr<_CSymbolColl> symbols = Create<_CSymbolColl>(__uuidof(CSymbolColl));
    std::ranges::sort(entries, ComesBefore, &CatalogueEntry::name);
    for (CatalogueEntry& entry : entries) {
        const HRESULT status = symbols->AppendRef(entry.symbol.Put());
        if (status == kDuplicateKey)
            throw Failure{L"Das Symbol \"" + entry.name + L"\" gibt es in mehreren Ordnern des Katalogs."};
        Check(status, entry.name);
    }
    return symbols;
}

} // namespace

Ptr<_CSymbolColl> OpenCatalogue(const fs::path& folder) {
    RequireFolder(folder); // the library takes a missing folder for an empty one
    std::vector<CatalogueEntry> entries;
    for (const fs::path& each : WithSubfolders(folder)) {
        const Ptr<_CSymbolColl> symbols = Create<_CSymbolColl>(__uuidof(CSymbolColl));
        Check(symbols->ReadKatalog(Bstr(fs::absolute(each).wstring()).Get()), each.wstring());
        std::ranges::move(EntriesOf(*symbols.Get(), folder), std::back_inserter(entries));
    }
    if (entries.empty())
        throw Failure{L"Keine Symbole (*.syb) im Ordner " + folder.wstring() +
                      L". Aus Textdateien entstehen sie mit: planhost convert TEXTORDNER KATALOGORDNER"};
    return InOrder(entries);
}

Ptr<_CSymbolColl> ImportFolder(const fs::path& folder) {
    RequireFolder(folder);
    Ptr<_CSymbolColl> symbols = Create<_CSymbolColl>(__uuidof(CSymbolColl));
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (!HasExtension(entry.path(), L".wsc"))
            continue;
        Ptr<_CSymbol> symbol = Create<_CSymbol>(__uuidof(CSymbol));
        SetPath(*symbol.Get(), entry.path());
        Check(symbol->ReadFromFile(), entry.path().filename().wstring());
        if (!IsEmpty(*symbol.Get()))
            Check(symbols->AppendRef(symbol.Put())); // Append would copy it without its size
    }
    LONG count = 0;
    Check(symbols->get_Count(&count));
    if (count == 0)
        throw Failure{L"Keine Symbole (*.wsc) im Ordner " + folder.wstring()};
    return symbols;
}

int ConvertFolder(const fs::path& textFolder, const fs::path& catalogueFolder) {
    RequireFolder(textFolder);
    const Ptr<_CSymbol> symbol = Create<_CSymbol>(__uuidof(CSymbol));
    int count = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(textFolder)) {
        if (!HasExtension(entry.path(), L".syt"))
            continue;
        SetPath(*symbol.Get(), entry.path());
        Check(symbol->ReadFromFile(), entry.path().filename().wstring());

        fs::path target = catalogueFolder / entry.path().lexically_relative(textFolder);
        target.replace_extension(L".syb");
        fs::create_directories(target.parent_path());
        fs::remove(target); // the library would ask the user before it overwrites
        SetPath(*symbol.Get(), target);
        Check(symbol->Write2File(), target.filename().wstring());
        ++count;
    }
    if (count == 0)
        throw Failure{L"Keine Symbole (*.syt) im Ordner " + textFolder.wstring()};
    return count;
}
