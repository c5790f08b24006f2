#include "plan_symbols.h"

#include "text.h"

std::vector<Ptr<_CSymbol>> FindSymbols(const Plan& plan, _CSymbolColl& catalogue) {
    std::vector<Ptr<_CSymbol>> symbols;
    for (const PlacedSymbol& placed : plan.symbols) {
        Ptr<_CSymbol> symbol;
        Check(catalogue.get_ItemByIndex(Bstr(placed.name).Get(), symbol.Put()));
        if (!symbol)
            throw Failure{Describe(placed) + L": Das Symbol \"" + placed.name + L"\" ist nicht im Katalog."};
        symbols.push_back(std::move(symbol));
    }
    return symbols;
}
