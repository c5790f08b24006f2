#include "qplan/model/own_catalogue.h"

#include "base/letter_case.h"

#include <utility>

namespace qplan {

void OwnCatalogue::Put(std::u16string_view name, qsymbol::Symbol symbol) {
    std::shared_ptr<OwnSymbol>& known = symbols_[base::UpperCase(name)];
    if (known == nullptr)
        known = std::make_shared<OwnSymbol>(std::move(symbol));
    else
        known->Put(std::move(symbol));
    ++edition_;
}

std::shared_ptr<const PlacedSymbol> OwnCatalogue::Find(std::u16string_view name) {
    const auto found = symbols_.find(base::UpperCase(name));
    return found == symbols_.end() ? nullptr : found->second;
}

} // namespace qplan
