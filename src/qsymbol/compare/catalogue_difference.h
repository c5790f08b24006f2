#pragma once

#include "qsymbol/compare/symbol_difference.h"

#include <string>
#include <vector>

namespace qsymbol {

/// A symbol of a catalogue that is compared.
struct CatalogueSymbol {
    std::u16string name; ///< with the subfolder that it is in
    bool isText = false; ///< it comes from a text file
    Symbol symbol;
};

/// What became of a symbol: "" on one side, it is new or gone; two names, it was renamed or it changed.
struct CatalogueDifference {
    std::u16string before;
    std::u16string after;
    SymbolDifference changes;
};

/// Matches symbols by name, whatever the case of its letters, and what is left by content. What differs, in the order of
/// the new catalogue, what is gone before it. Where one side is text both are compared as text files keep them.
std::vector<CatalogueDifference> Compare(const std::vector<CatalogueSymbol>& before,
                                         const std::vector<CatalogueSymbol>& after);

/// The precision for a pair.
Precision PrecisionOf(const CatalogueSymbol& before, const CatalogueSymbol& after);

} // namespace qsymbol
