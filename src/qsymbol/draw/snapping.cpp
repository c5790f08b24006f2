#include "qsymbol/draw/snapping.h"

#include "qsymbol/geometry/placement.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace qsymbol {

namespace {

std::span<const qmath::Point> Candidates(const ElementRecord& element) {
    const std::span<const qmath::Point> points(element.points);
    switch (element.type) {
    case ElementType::Poly: return points;
    case ElementType::Circle: return points.first(std::min<std::size_t>(points.size(), 1));
    case ElementType::Arc: return points.first(std::min<std::size_t>(points.size(), 3));
    case ElementType::Text:
    case ElementType::Undefined: break;
    }
    return {};
}

} // namespace

std::optional<CaughtPoint> CatchPt(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                                   const Transformation& transformation, float x, float y,
                                   std::int16_t range) {
    const Placement placement = SurfaceFreePlacement(Reference(symbol), position, screenFactor);
    for (const ElementRecord& element : symbol.elements) {
        for (const qmath::Point candidate : Candidates(element)) {
            const qmath::Point world = placement.Map(candidate);
            qmath::Point screen = world;
            transformation.WorldToScreen(screen);
            if (std::abs(screen.x - static_cast<double>(x)) < range &&
                std::abs(screen.y - static_cast<double>(y)) < range)
                return CaughtPoint{world, screen};
        }
    }
    return std::nullopt;
}

} // namespace qsymbol
