#pragma once

#include "qsymbol/geometry/placement.h"

#include <cstdint>
#include <optional>

namespace qsymbol {

/// What an element is drawn as; the type decides how many points it must have and how many are output.
enum class PaintSource {
    Element,     ///< an editor's element as it stands
    SymbolRecord ///< a part of a placed symbol
};

/// Everything in which the drawing of an element as it stands and as part of a placed symbol differ.
struct PaintRules {
    PaintSource source = PaintSource::Element;
    Placement placement;         ///< the identity: points are world coordinates already
    double textFactor = 1;       ///< multiplies the font height
    std::int32_t markColor = -1; ///< replaces the element's colours unless negative
    /// False: the image is combined with what is there, and texts go out as paths. Empty: as the surface says.
    std::optional<bool> copyMode = {};
};

} // namespace qsymbol
