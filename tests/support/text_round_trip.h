#pragma once

#include "qsymbol/model/symbol.h"

namespace support {

/// True when the text form of a symbol does not read back: it has no elements, a polyline without points or
/// an arc with more than three.
bool IsLostInText(const qsymbol::Symbol& symbol);

/// The symbol as its text form gives it back, angles aside: undefined elements move to the end, a closed
/// polyline of two points becomes a rectangle, and what the format has no place for is gone.
qsymbol::Symbol AfterText(const qsymbol::Symbol& symbol);

/// Equal but for angles, which may differ by half a hundredth of a degree and by what a double cannot hold.
bool EqualInText(const qsymbol::Symbol& a, const qsymbol::Symbol& b);

/// True when every angle is written with all its digits, so that writing it again changes nothing.
bool AnglesAreModest(const qsymbol::Symbol& symbol);

} // namespace support
