#pragma once

#include "qsymbol/model/symbol.h"

#include <algorithm>

namespace qsymbol {

/// A rectangle around drawn lines, in the symbol's own coordinates.
struct DrawnExtent {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
    double LargerSide() const { return std::max(Width(), Height()); }
};

/// The smallest rectangle around lines, circles and the sweeps of arcs with half their pens, texts aside. False when
/// nothing of that is drawn.
bool FindDrawnExtent(const Symbol& symbol, DrawnExtent& extent);

} // namespace qsymbol
