#pragma once

#include <cstdint>

namespace qsymbol {

/// Kinds of element. Other values are kept as they are and draw nothing.
enum class ElementType : std::int32_t { Undefined = 0, Poly = 1, Circle = 2, Arc = 3, Text = 4 };

} // namespace qsymbol
