#pragma once

#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// The smallest box around lines, circles and the sweeps of arcs with half their pens, texts aside; empty when nothing
/// of that is drawn.
qmath::Box DrawnExtent(const Symbol& symbol);

} // namespace qsymbol
