#pragma once

#include "automation/qsymbol/CSymbol.h"

/// A symbol of this library as another library of this product takes it: the ISymbolValue of the object, with a
/// reference for the caller; nullptr when memory does not suffice.
void* NewSymbolValue(CSymbol& symbol) noexcept;
