#pragma once

#include "qmath/box.h"
#include "qsymbol/geometry/symbol_position.h"

namespace qsymbol {

/// The box as it is seen from a point: from a symbol's reference point, for example.
qmath::Box SeenFrom(qmath::Point point, const qmath::Box& box);

/// The box around the corners of another one, which is seen from a symbol's reference point, where the symbol is placed
/// unscaled. Empty for an empty one.
qmath::Box PlacedBox(const qmath::Box& box, const SymbolPosition& position);

} // namespace qsymbol
