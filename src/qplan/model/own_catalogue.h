#pragma once

#include "qplan/model/own_symbol.h"
#include "qplan/model/symbol_source.h"

#include <string>
#include <unordered_map>

namespace qplan {

/// A catalogue of symbol values by their names.
class OwnCatalogue final : public SymbolSource {
public:
    /// Adds a symbol, or gives the one of this name in any case of letters another content.
    void Put(std::u16string_view name, qsymbol::Symbol symbol);

    std::shared_ptr<const PlacedSymbol> Find(std::u16string_view name) override;
    std::uint64_t Edition() const override { return edition_; }

private:
    std::unordered_map<std::u16string, std::shared_ptr<OwnSymbol>> symbols_; ///< by name in upper case
    std::uint64_t edition_ = 0;
};

} // namespace qplan
