#pragma once

#include "qsymbol/model/element_record.h"

namespace qsymbol {

/// World units to a millimetre, as font sizes take them.
inline constexpr double kFontFactor = 100.0;

/// A text record with the size flag keeps its font size in hundredths.
inline constexpr double kFlaggedSizeDivisor = 100.0;
inline bool HasFlaggedSize(const ElementRecord& text) {
    return text.lineClosed;
}

} // namespace qsymbol
