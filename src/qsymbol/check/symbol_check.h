#pragma once

#include "qsymbol/check/finding.h"
#include "qsymbol/model/symbol.h"

#include <cstddef>
#include <vector>

namespace qsymbol {

/// Finds what is wrong with a symbol that could be read: goes over its elements, then tells.
class SymbolCheck {
public:
    /// The next element.
    void Look(const ElementRecord& element);

    /// Warnings by kind, within a kind by element: "empty", "undefined-element", "degenerate-element", "zero-size",
    /// "size-mismatch", "reference-far", "colour-not-in-table", "text-line-break", "dxf-text-size". Of the symbol its
    /// sizes and its reference point count. To be asked once.
    std::vector<Finding> Findings(const Symbol& symbol);

private:
    using Found = std::vector<Finding>;

    struct Text {
        std::size_t number;
        double height; ///< that DXF files give it
    };

    std::size_t number_ = 0; ///< of the last element, from 1
    qmath::Box drawn_;       ///< what lines, circles and the sweeps of arcs reach to with half their pens
    Found undefined_;
    Found degenerate_;
    Found colours_;
    Found lineBreaks_;
    std::vector<Text> texts_;
};

/// The same for all elements of a symbol.
std::vector<Finding> CheckSymbol(const Symbol& symbol);

} // namespace qsymbol
