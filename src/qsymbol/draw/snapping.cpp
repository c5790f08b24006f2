#include "qsymbol/draw/snapping.h"

#include "base/error.h"
#include "qsymbol/geometry/pixel_reach.h"
#include "qsymbol/geometry/placement.h"
#include "qsymbol/geometry/turn.h"

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
        const qmath::Box& points = symbol.elements.Extent().points;
        x = std::max(std::abs(points.left - symbol.refX), std::abs(points.right - symbol.refX));
        y = std::max(std::abs(points.top - symbol.refY), std::abs(points.bottom - symbol.refY));
    }
    double x;
    double y;
};

/// Where the points of a symbol are before they are rounded, near enough to pass most of them by.
class Nearness {
public:
    Nearness(const Symbol& symbol, double angle, const PixelReach& reach, const Cursor& cursor)
        : alongX_(reach.Unit() * TurnBy(angle).cosine), alongY_(reach.Unit() * TurnBy(angle).sine),
          refX_(symbol.refX), refY_(symbol.refY), x_(cursor.x - reach.X()), y_(cursor.y - reach.Y()),
          range_(cursor.range + reach.Slack()) {}

    bool operator()(qmath::Point point) const {
        const double x = point.x - refX_;
        const double y = point.y - refY_;
        return std::abs(alongX_ * x + alongY_ * y - x_) < range_ &&
               std::abs(alongX_ * y - alongY_ * x - y_) < range_;
    }

private:
    double alongX_;
    double alongY_;
    double refX_;
    double refY_;
    double x_;
    double y_;
    double range_;
};

template <class MayCatch, class ToScreen>
std::optional<CaughtPoint> WalkThrough(const Symbol& symbol, const Placement& placement, const Cursor& cursor,
                                       const MayCatch& mayCatch, const ToScreen& toScreen) {
    for (const ElementRecord& element : symbol.elements) {
        for (const qmath::Point candidate : Candidates(element)) {
            if (!mayCatch(candidate))
                continue;
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
    qmath::Box pixels;
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
    // Only when it is needed: it takes a sine and a cosine.
    const auto placement = [&] { return SurfaceFreePlacement(Reference(symbol), position, screenFactor); };
    const auto anyPoint = [](qmath::Point) { return true; };
    if (const qmath::Transform* const plain = transformation.Plain()) {
        const auto toScreen = [plain](qmath::Point world) { return plain->WorldToScreen(world); };
        const Far far(symbol);
        const PixelReach reach(far.x, far.y, position, screenFactor, *plain);
        if (!reach.IsKnown())
            return WalkThrough(symbol, placement(), cursor, anyPoint, toScreen);
        const double away = std::max(std::abs(cursor.x - reach.X()), std::abs(cursor.y - reach.Y()));
        if (reach.IsBeyond(away - cursor.range))
            return std::nullopt;
        return WalkThrough(symbol, placement(), cursor, Nearness(symbol, position.angle, reach, cursor),
                           toScreen);
    }
    if (CandidateCount(symbol) > kWorthAsking &&
        IsOutOfReach(Far(symbol), position, screenFactor, transformation, cursor))
        return std::nullopt;
    return WalkThrough(symbol, placement(), cursor, anyPoint, [&](qmath::Point world) {
        transformation.WorldToScreen(world);
        return world;
    });
}

} // namespace qsymbol
