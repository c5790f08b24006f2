#pragma once

#include "qsymbol/geometry/symbol_position.h"

#include <cstdint>

namespace qplan {

/// One placed symbol.
struct Placement {
    std::int32_t id = 0;      ///< 1 or more, larger than that of everything below it
    std::uint32_t symbol = 0; ///< which of the plan's symbols
    qsymbol::SymbolPosition position;
};

} // namespace qplan
