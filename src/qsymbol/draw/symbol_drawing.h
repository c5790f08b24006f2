#pragma once

#include "qsymbol/draw/surface.h"
#include "qsymbol/geometry/draw_factors.h"
#include "qsymbol/geometry/symbol_position.h"
#include "qsymbol/geometry/transformation.h"
#include "qsymbol/model/symbol.h"

#include <cstdint>

namespace qsymbol {

/// Draws a placed symbol.
///
/// A mark colour that is not negative replaces the colours of all elements, fills included. Errors of surface
/// and transformation pass through; error 6 where a coordinate leaves the 32-bit range.
void DrawSymbol(const Symbol& symbol, const SymbolPosition& position, Surface& surface,
                const Transformation& transformation, const DrawFactors& factors,
                std::int32_t markColor = -1);

} // namespace qsymbol
