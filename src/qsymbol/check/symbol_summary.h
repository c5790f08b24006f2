#pragma once

#include "qsymbol/model/element_record.h"

#include <cstddef>

namespace qsymbol {

/// How many elements of each kind a symbol has, and how many points all of them have.
struct SymbolSummary {
    std::size_t poly = 0;
    std::size_t circle = 0;
    std::size_t arc = 0;
    std::size_t text = 0;
    std::size_t undefined = 0; ///< also kinds that this library does not know
    std::size_t points = 0;

    void Count(const ElementRecord& element);

    friend bool operator==(const SymbolSummary&, const SymbolSummary&) = default;
};

} // namespace qsymbol
