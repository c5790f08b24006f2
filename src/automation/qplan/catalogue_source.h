#pragma once

#include "automation/qplan/symbol_library.h"
#include "automation/qplan/symbol_object.h"
#include "qplan/model/symbol_source.h"

#include <memory>
#include <unordered_map>

/// A catalogue object, ours or a host's own, as a plan takes its symbols from it.
class CatalogueSource final : public qplan::SymbolSource {
public:
    CatalogueSource(_CSymbolColl& catalogue, std::shared_ptr<SymbolLibrary> library)
        : catalogue_(&catalogue), library_(std::move(library)) {}

    _CSymbolColl& Object() const { return *catalogue_; }

    std::shared_ptr<const qplan::PlacedSymbol> Find(std::u16string_view name) override;
    std::uint64_t Edition() const override;

private:
    std::shared_ptr<const SymbolObject> Wrap(_CSymbol& symbol);

    com::ComPtr<_CSymbolColl> catalogue_;
    std::shared_ptr<SymbolLibrary> library_;
    std::unordered_map<_CSymbol*, std::weak_ptr<const SymbolObject>> given_;
    bool hasHostSymbols_ = false;
    mutable std::uint64_t asked_ = 0;
};
