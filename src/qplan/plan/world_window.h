#pragma once

#include "qmath/rect.h"
#include "qplan/index/world_box.h"
#include "qsymbol/geometry/transformation.h"

#include <optional>

namespace qplan {

/// Edges in pixels, not rounded.
struct PixelWindow {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    /// Takes a rectangle with exchanged edges as the one between them.
    static PixelWindow Around(const qmath::Rect& rect, double margin = 0);
};

/// A box such that what lies wholly inside, in whole world units, has all its pixels in the window; one that holds nothing
/// where that is not certain.
WorldBox InnerWindow(const PixelWindow& pixels, const qsymbol::Transformation& transformation);

/// A box such that what lies outside, in whole world units, has no pixel in the window: rounding to pixels is allowed for.
///
/// Nothing where that is not certain: for a map of the host that fails, or whose way back does not lead back. That it
/// takes lines to lines is all that is believed of such a map.
std::optional<WorldBox> WorldWindow(const PixelWindow& pixels, const qsymbol::Transformation& transformation);

} // namespace qplan
