#include "catalogue_entries.h"

#include "millimetres.h"

#include <algorithm>
#include <cmath>

namespace fs = std::filesystem;

namespace {

std::wstring Millimetres(LONG units) {
    return std::to_wstring(std::lround(units / static_cast<double>(kUnitsPerMillimetre)));
}

/// The symbol's folder as seen from the catalogue.
std::wstring CategoryOf(_CSymbol& symbol, const fs::path& catalogue) {
    Bstr file;
    Check(symbol.get_FilePath(file.Put()));
    const std::wstring category =
        fs::path(file.Text()).parent_path().lexically_relative(fs::absolute(catalogue)).wstring();
    return category == L"." ? L"" : category;
}

} // namespace

std::vector<CatalogueEntry> EntriesOf(_CSymbolColl& symbols, const fs::path& folder) {
    LONG count = 0;
    Check(symbols.get_Count(&count));
    std::vector<CatalogueEntry> entries(count);
    for (LONG i = 0; i < count; ++i) {
        CatalogueEntry& entry = entries[i];
        Bstr name;
        Check(symbols.get_ItemByPos(i + 1, entry.symbol.Put()));
        Check(entry.symbol->get_Name(name.Put()));
        Check(entry.symbol->get_Width(&entry.width));
        Check(entry.symbol->get_Height(&entry.height));
        entry.name = name.Text();
        entry.category = CategoryOf(*entry.symbol.Get(), folder);
    }
    std::sort(entries.begin(), entries.end(), [](const CatalogueEntry& a, const CatalogueEntry& b) {
        return a.category == b.category ? ComesBefore(a.name, b.name) : ComesBefore(a.category, b.category);
    });
    return entries;
}

bool ComesBefore(const std::wstring& a, const std::wstring& b) {
    const LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
    return CompareStringW(german, NORM_IGNORECASE, a.c_str(), -1, b.c_str(), -1) == CSTR_LESS_THAN;
}

std::wstring SizeText(const CatalogueEntry& entry) {
    return Millimetres(entry.width) + L" × " + Millimetres(entry.height) + L" mm";
}
