#pragma once

#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/tools/drawable_symbol.h"

#include <utility>

namespace tools {

/// A plain symbol for the tools, without a host.
class ValueSymbol final : public qsymbol::DrawableSymbol {
public:
    explicit ValueSymbol(qsymbol::Symbol symbol) : value(std::move(symbol)) {}

    void Draw(const qsymbol::SymbolPosition& place, qsymbol::DrawingTarget& target) const override {
        qsymbol::DrawSymbol(value, place, target.OpenSurface(), target.OpenTransformation(),
                            qsymbol::kUnscaled);
    }
    std::shared_ptr<const DrawableSymbol> Copy() const override {
        qsymbol::Symbol copy;
        qsymbol::CopySymbol(copy, value);
        return std::make_shared<ValueSymbol>(std::move(copy));
    }

    qsymbol::Symbol value;
};

} // namespace tools
