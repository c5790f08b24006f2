#include "automation/qplan/catalogue_source.h"

#include "automation/qplan/host_plan_symbol.h"
#include "automation/qplan/shared_symbol.h"
#include "com/object_call.h"

std::shared_ptr<const SymbolObject> CatalogueSource::Wrap(_CSymbol& symbol) {
    if (auto value = ValueOf<ISymbolValue>(symbol); value && library_->Has(*value.Get()))
        if (auto shared = SharedSymbol::Take(symbol, std::move(value)))
            return shared;
    hasHostSymbols_ = true;
    return std::make_shared<HostPlanSymbol>(symbol);
}

std::shared_ptr<const qplan::PlacedSymbol> CatalogueSource::Find(std::u16string_view name) {
    com::ComPtr<_CSymbol> symbol;
    com::Call(*catalogue_, &_CSymbolColl::get_ItemByIndex, com::Bstr(name).Get(), symbol.Put());
    if (!symbol)
        return nullptr;
    // One that has gone may have left its address to another.
    if (const auto known = given_.find(symbol.Get()); known != given_.end())
        if (auto object = known->second.lock())
            return object;
    std::shared_ptr<const SymbolObject> object = Wrap(*symbol.Get());
    given_[symbol.Get()] = object;
    return object;
}

std::uint64_t CatalogueSource::Edition() const {
    // A host's symbols may have changed at any time.
    return library_->Edition() + (hasHostSymbols_ ? ++asked_ : asked_);
}
