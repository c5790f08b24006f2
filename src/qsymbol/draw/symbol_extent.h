#pragma once

#include "base/text_measure.h"
#include "qmath/rect.h"
#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// The smallest rectangle of whole units in the symbol's own coordinates around all that is drawn, not scaled and
/// not turned: lines and circles with half their pens, arcs by their sweep, texts by their box where a measure is
/// given and by their anchor otherwise. Cut off at the 32-bit range; all 0 when nothing is drawn.
///
/// All but the texts is computed once and kept with the symbol's elements.
qmath::Rect SymbolExtent(const Symbol& symbol, const base::TextMeasure* texts = nullptr);

} // namespace qsymbol
