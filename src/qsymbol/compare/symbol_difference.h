#pragma once

#include "qsymbol/compare/change.h"
#include "qsymbol/compare/precision.h"
#include "qsymbol/model/symbol.h"

#include <cstddef>
#include <vector>

namespace qsymbol {

/// An element that is new, gone or changed.
struct ElementDifference {
    ElementType type = ElementType::Undefined;
    std::size_t before = 0; ///< its number in the old symbol, from 1; 0: it is new
    std::size_t after = 0;  ///< its number in the new symbol, from 1; 0: it is gone
    std::vector<Change> changes;

    friend bool operator==(const ElementDifference&, const ElementDifference&) = default;
};

/// What tells a new symbol from an old one; its name and its path aside.
struct SymbolDifference {
    std::vector<Change> header;
    std::vector<ElementDifference> elements; ///< in drawing order

    bool IsEmpty() const { return header.empty() && elements.empty(); }
    friend bool operator==(const SymbolDifference&, const SymbolDifference&) = default;
};

/// Elements that are the same on both sides are found in their order; between these, elements of one kind are taken for
/// changed ones. Symbols of very many elements that differ all over are compared place by place.
SymbolDifference Compare(const Symbol& before, const Symbol& after, Precision precision);

} // namespace qsymbol
