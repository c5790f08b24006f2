#pragma once

#include "qmath/point.h"
#include "qmath/rect.h"
#include "qsymbol/geometry/pixel_reach.h"
#include "qsymbol/model/symbol.h"

#include <optional>

namespace qsymbol {

/// The outline box of a placed symbol before its corners are rounded. It answers where rounding cannot matter, for
/// most questions without or with little trigonometry, and leaves the rest to the exact test of the rounded outline.
class QuickHit {
public:
    QuickHit(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
             const qmath::Transform& transform);

    std::optional<bool> Contains(qmath::Point screen) const;
    std::optional<bool> Meets(const qmath::Rect& screen) const;

private:
    double angle_;
    // The box about the insertion point before turning, in pixels: its middle, and half its sides.
    double middleX_ = 0;
    double middleY_ = 0;
    double halfX_ = 0;
    double halfY_ = 0;
    PixelReach reach_;
};

} // namespace qsymbol
