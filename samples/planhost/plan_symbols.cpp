#include "plan_symbols.h"

#include "text.h"

std::vector<Ptr<_CSymbol>> FindSymbols(const std::vector<PlacedSymbol>& placed, _CSymbolColl& catalogue) {
    std::vector<Ptr<_CSymbol>> symbols;
    symbols.reserve(placed.size());
    for (const PlacedSymbol& one : placed) {
        Ptr<_CSymbol> symbol;
        Check(catalogue.get_ItemByIndex(Bstr(one.name).Get(), symbol.Put()));
        if (!symbol)
            throw Failure{Describe(one) + L": Das Symbol \"" + one.name + L"\" ist nicht im Katalog."};
        symbols.push_back(std::move(symbol));
    }
    return symbols;
}

std::vector<Ptr<_CSymbol>> FindSymbols(const Plan& plan, _CSymbolColl& catalogue) {
    return FindSymbols(plan.symbols, catalogue);
}
