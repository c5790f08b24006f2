#pragma once

#include "catalogue.h"
#include "plan_file.h"

/// Every symbol that the plan names, in the plan's order; none may be missing from the catalogue.
std::vector<Ptr<_CSymbol>> FindSymbols(const Plan& plan, _CSymbolColl& catalogue);
