#include "qsymbol/draw/snapping.h"

#include "base/error.h"
#include "qsymbol/geometry/pixel_reach.h"
#include "qsymbol/geometry/placement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
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

/// Where the cursor is, and how near a point must be.
struct Cursor {
    double x;
    double y;
    double range;

    bool Catches(qmath::Point screen) const {
        return std::abs(screen.x - x) < range && std::abs(screen.y - y) < range;
    }
};

/// The largest distances of any point from the reference point along both axes.
struct Far {
    explicit Far(const Symbol& symbol) {
        const Box& points = symbol.elements.Extent().points;
        x = std::max(std::abs(points.left - symbol.refX), std::abs(points.right - symbol.refX));
        y = std::max(std::abs(points.top - symbol.refY), std::abs(points.bottom - symbol.refY));
    }
    double x;
    double y;
};

template <class ToScreen>
std::optional<CaughtPoint> WalkThrough(const Symbol& symbol, const Placement& placement, const Cursor& cursor,
                                       const ToScreen& toScreen) {
    for (const ElementRecord& element : symbol.elements) {
        for (const qmath::Point candidate : Candidates(element)) {
            const qmath::Point world = placement.Map(candidate);
            const qmath::Point screen = toScreen(world);
            if (cursor.Catches(screen))
                return CaughtPoint{world, screen};
        }
    }
    return std::nullopt;
}

/// Whether the cursor is out of reach of all candidates, whatever the map: it takes four corners around them to what
/// lies around their pixels. What fails there is left to the walk, which may not come to it.
bool IsOutOfReach(const Far& far, const SymbolPosition& position, double screenFactor,
                  const Transformation& transformation, const Cursor& cursor) {
    constexpr double kRoundedUp = 2;
    constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
    const double reach = std::hypot(far.x, far.y) * std::abs(FactorOrOne(screenFactor)) +
                         kRoundedUp; // more than both roundings
    const auto fits = [&](double at) { return std::abs(at) + reach < kHighest; };
    if (!std::isfinite(position.angle) || !fits(position.at.x) || !fits(position.at.y))
        return false;
    const auto side = static_cast<std::int32_t>(reach);
    const qmath::Point at = position.at;
    std::array<qmath::Point, 4> corners{{{at.x - side, at.y - side},
                                         {at.x + side, at.y - side},
                                         {at.x + side, at.y + side},
                                         {at.x - side, at.y + side}}};
    try {
        transformation.PointsToScreen(corners);
    } catch (const base::Error&) {
        return false;
    }
    Box pixels;
    for (const qmath::Point corner : corners)
        pixels.Include(corner.x, corner.y, 1);
    return pixels.left - cursor.x >= cursor.range || cursor.x - pixels.right >= cursor.range ||
           pixels.top - cursor.y >= cursor.range || cursor.y - pixels.bottom >= cursor.range;
}

/// From so many points on, asking for the corners first pays.
constexpr std::size_t kWorthAsking = 8;

std::size_t CandidateCount(const Symbol& symbol) {
    std::size_t count = 0;
    for (const ElementRecord& element : symbol.elements)
        count += Candidates(element).size();
    return count;
}

} // namespace

std::optional<CaughtPoint> CatchPt(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                                   const Transformation& transformation, float x, float y,
                                   std::int16_t range) {
    const Cursor cursor{x, y, static_cast<double>(range)};
    const qmath::Transform* const plain = transformation.Plain();
    if (plain != nullptr) {
        const Far far(symbol);
        const PixelReach reach(far.x, far.y, position, screenFactor, *plain);
        if (reach.IsBeyond(std::max(std::abs(cursor.x - reach.X()), std::abs(cursor.y - reach.Y())) -
                           cursor.range))
            return std::nullopt;
    } else if (CandidateCount(symbol) > kWorthAsking &&
               IsOutOfReach(Far(symbol), position, screenFactor, transformation, cursor)) {
        return std::nullopt;
    }
    const Placement placement = SurfaceFreePlacement(Reference(symbol), position, screenFactor);
    if (plain != nullptr)
        return WalkThrough(symbol, placement, cursor,
                           [plain](qmath::Point world) { return plain->WorldToScreen(world); });
    return WalkThrough(symbol, placement, cursor, [&](qmath::Point world) {
        transformation.WorldToScreen(world);
        return world;
    });
}

} // namespace qsymbol
