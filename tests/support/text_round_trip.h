#pragma once

#include "base/code_page.h"
#include "qsymbol/model/symbol.h"

namespace support {

/// True when a text file would not read back, or not as what it was: an element without its point, its font or
/// with more points than read; a number that the format has no form for; characters that end a field.
bool IsRefusedAsText(const qsymbol::Symbol& symbol, const base::CodePage& codePage);

/// True when a string has more than 65,535 bytes or a font size more than 32 bits.
bool IsRefusedAsBinary(const qsymbol::Symbol& symbol, const base::CodePage& codePage);

/// The symbol as its text form gives it back, angles aside: undefined elements move to the end, a closed
/// polyline of two points becomes a rectangle, a text is cut at ";", and what the format has no place for
/// is gone.
qsymbol::Symbol AfterText(const qsymbol::Symbol& symbol, const base::CodePage& codePage);

/// Equal but for angles, which may differ by half a hundredth of a degree and by what a double cannot hold.
bool EqualInText(const qsymbol::Symbol& a, const qsymbol::Symbol& b);

/// True when every angle is written with all its digits, so that writing it again changes nothing.
bool AnglesAreModest(const qsymbol::Symbol& symbol);

} // namespace support
