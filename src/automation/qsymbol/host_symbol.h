#pragma once

#include "automation/qsymbol/CSymbol.h"
#include "qsymbol/tools/drawable_symbol.h"

/// A symbol object as the placing tools share it with its owner: one of ours, or one of the host's own
/// making, which draws itself.
class HostSymbol final : public qsymbol::DrawableSymbol {
public:
    /// Nothing for Nothing. Passes on what the object says when it is asked who it is.
    static std::shared_ptr<const HostSymbol> Share(_CSymbol* symbol);

    void Draw(const qsymbol::SymbolPosition& place, qsymbol::DrawingTarget& target) const override;
    /// Errors of a symbol of the host's own making that does not tell what a copy needs.
    std::shared_ptr<const qsymbol::DrawableSymbol> Copy() const override;

private:
    com::ComPtr<_CSymbol> symbol_;
    com::ComPtr<CSymbol> own_; ///< the same object; empty for a foreign one
};
