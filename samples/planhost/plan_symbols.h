#pragma once

#include "catalogue.h"
#include "plan_file.h"

/// The catalogue's symbol for every placed one, in their order; none may be missing.
std::vector<Ptr<_CSymbol>> FindSymbols(const std::vector<PlacedSymbol>& placed, _CSymbolColl& catalogue);

/// Every symbol that the plan names, in the plan's order; none may be missing from the catalogue.
std::vector<Ptr<_CSymbol>> FindSymbols(const Plan& plan, _CSymbolColl& catalogue);
