#include "automation/qplan/symbol_library.h"

bool SymbolLibrary::Has(ISymbolValue& symbol) {
    com::ComPtr<ISymbolLibrary> library;
    com::Call(symbol, &ISymbolValue::Library, library.Put());
    if (!library_)
        library_ = library;
    return library_->Id() == library->Id();
}
