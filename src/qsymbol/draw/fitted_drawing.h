#pragma once

#include "base/text_measure.h"
#include "qsymbol/draw/surface.h"
#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// Draws the whole symbol as large as it fits into a box of the given size in pixels, without a margin.
///
/// The size is the symbol's Width and Height; when neither is positive, its true extent, with texts as they are
/// measured. A box or an extent without size draws nothing.
void DrawFitted(const Symbol& symbol, Surface& surface, double boxWidth, double boxHeight,
                const base::TextMeasure* texts = nullptr);

} // namespace qsymbol
