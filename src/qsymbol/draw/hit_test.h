#pragma once

#include "qmath/point.h"
#include "qmath/rect.h"
#include "qsymbol/geometry/symbol_position.h"
#include "qsymbol/geometry/transformation.h"
#include "qsymbol/model/symbol.h"

/// Hit tests of a placed symbol by its turned outline box in pixels. A symbol without elements is never hit.
/// Errors of the transformation pass through; error 6 outside the 32-bit range.
namespace qsymbol {

/// A pixel on the outline is a hit.
bool ObjIdentByPt(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                  const Transformation& transformation, qmath::Point screen);

/// True when box and rectangle share at least one pixel, also when one lies inside the other.
bool ObjIdentByRect(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                    const Transformation& transformation, const qmath::Rect& screen);

} // namespace qsymbol
