#include "automation/qsymbol/symbol_access.h"

#include "automation/qsymbol/CSymbol.h"

qsymbol::Symbol CopyOf(_CSymbol& symbol) {
    const com::ComPtr<CSymbol> own = com::Own<CSymbol>(symbol);
    if (!own)
        return ReadPublished(symbol);
    qsymbol::Symbol copy;
    qsymbol::CopySymbol(copy, *own->Value());
    return copy;
}
