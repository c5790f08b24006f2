#pragma once

#include "automation/shared/library_values.h"

/// The symbol library whose symbols a plan takes by value: that of the first one. Symbols of another copy are objects
/// like a host's.
class SymbolLibrary {
public:
    /// True for a symbol of this library; the first one that is asked about decides.
    bool Has(ISymbolValue& symbol);

    std::uint64_t Edition() const { return library_ ? library_->Edition() : 0; }
    /// That of the thread's last drawing; unscaled without a symbol of ours.
    double ScreenFactor() const { return library_ ? library_->ScreenFactor() : 0; }
    void KeepFactors(double printer, double screen) const {
        if (library_)
            library_->KeepFactors(printer, screen);
    }

private:
    com::ComPtr<ISymbolLibrary> library_;
};
