#pragma once

#include "base/text_measure.h"
#include "qsymbol/model/element_extent.h"

namespace qsymbol {

/// Takes the turned box of a text record into a box in the symbol's own coordinates; nothing for a text without
/// characters, without a point or without a font. Error 6 for a font size outside 16 bits.
void IncludeText(qmath::Box& box, const ElementRecord& text, const base::TextMeasure& measure);

} // namespace qsymbol
