#pragma once

#include "com.h"

#include <QSymbol.h>

#include <filesystem>
#include <string>
#include <vector>

/// What a host shows of a symbol in lists.
struct CatalogueEntry {
    std::wstring category; ///< the subfolder of the catalogue, empty for the catalogue's own folder
    std::wstring name;
    Ptr<_CSymbol> symbol;
    LONG width = 0; ///< in units, as the height
    LONG height = 0;
};

/// One entry for each symbol, in German order of category and name. folder: the catalogue that the symbols' files
/// are from.
std::vector<CatalogueEntry> EntriesOf(_CSymbolColl& symbols, const std::filesystem::path& folder);

/// Whether a name stands before another in German order: umlauts with their vowels, whatever the case.
bool ComesBefore(const std::wstring& a, const std::wstring& b);

/// "600 × 480 mm".
std::wstring SizeText(const CatalogueEntry& entry);
