#pragma once

#include "com/com_ptr.h"
#include "qplan/model/placed_symbol.h"

#include <QSymbol.h>

/// A symbol of a plan that is an object of a catalogue.
class SymbolObject : public qplan::PlacedSymbol {
public:
    _CSymbol& Object() const { return *symbol_; }

protected:
    explicit SymbolObject(_CSymbol& symbol) : symbol_(&symbol) {}

private:
    com::ComPtr<_CSymbol> symbol_;
};
