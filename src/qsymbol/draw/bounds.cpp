#include "qsymbol/draw/bounds.h"

#include "qmath/math_util.h"

#include <algorithm>

namespace qsymbol {

std::array<qmath::Point, 4> OutlineCorners(const Symbol& symbol, const SymbolPosition& position,
                                           double screenFactor) {
    std::array<qmath::Point, 4> corners{
        {{0, 0}, {symbol.width, 0}, {symbol.width, symbol.height}, {0, symbol.height}}};
    SurfaceFreePlacement(Reference(symbol), position, screenFactor).Map(corners, corners.data());
    return corners;
}

qmath::Rect GetBoundingRect(const Symbol& symbol, const SymbolPosition& position, double screenFactor) {
    qmath::Rect bounds{qmath::kMaxLong, qmath::kMaxLong, -qmath::kMaxLong, -qmath::kMaxLong};
    for (const qmath::Point corner : OutlineCorners(symbol, position, screenFactor)) {
        bounds.left = std::min(bounds.left, corner.x);
        bounds.top = std::min(bounds.top, corner.y);
        bounds.right = std::max(bounds.right, corner.x);
        bounds.bottom = std::max(bounds.bottom, corner.y);
    }
    return bounds;
}

} // namespace qsymbol
