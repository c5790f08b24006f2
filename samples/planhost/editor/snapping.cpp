#include "snapping.h"

#include <cmath>

namespace {

constexpr SHORT kCatchRange = 12; // pixels

} // namespace

Pointer CatchPoint(const PlanDocument& document, const PlanView& view, POINT pixel) {
    const std::vector<PlacedSymbol>& placed = document.Content().symbols;
    // What lies on top catches first.
    for (std::size_t i = placed.size(); i-- > 0;) {
        auto x = static_cast<float>(pixel.x);
        auto y = static_cast<float>(pixel.y);
        POINT point;
        VARIANT_BOOL isCaught = VARIANT_FALSE;
        Check(document.Symbols()[i]->CatchPt(&x, &y, &point.x, &point.y, placed[i].at.x, placed[i].at.y,
                                             Radians(placed[i]), &view.Transformation(), kCatchRange,
                                             &isCaught));
        if (isCaught != VARIANT_FALSE)
            return {{std::lround(x), std::lround(y)}, point};
    }
    return {pixel, std::nullopt};
}
