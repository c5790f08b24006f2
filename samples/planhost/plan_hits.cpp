#include "plan_hits.h"

namespace {

Ptr<_CRect> MakeRect(const RECT& pixels) {
    Ptr<_CRect> rect = Create<_CRect>(__uuidof(CRect));
    Check(rect->put_Left(pixels.left));
    Check(rect->put_Top(pixels.top));
    Check(rect->put_Right(pixels.right));
    Check(rect->put_Bottom(pixels.bottom));
    return rect;
}

} // namespace

/// A symbol is hit by its outline box, turned and placed as it was drawn. The library scales the box by the
/// screen factor of the last drawing; before the first one that is none, as in this plan.
bool IsSymbolAt(const PointedAt& place, const PlacedSymbol& placed, _CSymbol& symbol,
                _CTrans& transformation) {
    const auto [x, y] = placed.at;
    VARIANT_BOOL isHit = VARIANT_FALSE;
    if (place.isPoint)
        Check(symbol.ObjIdentByPt(x, y, Radians(placed), &transformation, place.pixels.left, place.pixels.top,
                                  &isHit));
    else
        Check(symbol.ObjIdentByRect(x, y, Radians(placed), &transformation, MakeRect(place.pixels).Get(),
                                    &isHit));
    return isHit != VARIANT_FALSE;
}

std::vector<std::size_t> SymbolsAt(const PointedAt& place, const Plan& plan,
                                   const std::vector<Ptr<_CSymbol>>& symbols, _CTrans& transformation) {
    std::vector<std::size_t> found;
    // What is drawn last lies on top.
    for (std::size_t i = symbols.size(); i-- > 0;) {
        if (!IsSymbolAt(place, plan.symbols[i], *symbols[i].Get(), transformation))
            continue;
        found.push_back(i);
        if (place.isPoint)
            break;
    }
    return found;
}
