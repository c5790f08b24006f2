#pragma once

#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// The smallest box around lines, circles and the sweeps of arcs with half their pens, texts aside; empty when nothing
/// of that is drawn.
Box DrawnExtent(const Symbol& symbol);

inline double WidthOf(const Box& box) {
    return box.right - box.left;
}
inline double HeightOf(const Box& box) {
    return box.bottom - box.top;
}

} // namespace qsymbol
