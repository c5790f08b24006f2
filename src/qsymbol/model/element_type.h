#pragma once

#include <cstdint>

namespace qsymbol {

/// Kinds of element. Other values are kept as they are and draw nothing.
enum class ElementType : std::int32_t { Undefined = 0, Poly = 1, Circle = 2, Arc = 3, Text = 4 };

/// A kind of element that is drawn; files may hold others.
constexpr bool IsKnown(ElementType type) {
    return type >= ElementType::Poly && type <= ElementType::Text;
}

} // namespace qsymbol
