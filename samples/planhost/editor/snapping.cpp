#include "snapping.h"

#include "../wall_outline.h"
#include "grid.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr SHORT kCatchRange = 12; // pixels

/// The nearest of several points.
class Catch {
public:
    Catch(const ViewMap& map, POINT pixel) : map_(map), pixel_(pixel) {}

    void Offer(POINT units, const wchar_t* kind) {
        const auto [x, y] = map_.ToPixel(units);
        const double distance = std::hypot(x - pixel_.x, y - pixel_.y);
        if (distance >= nearest_)
            return;
        nearest_ = distance;
        point_ = units;
        kind_ = kind;
    }
    bool HasPoint() const { return kind_ != nullptr; }
    POINT Point() const { return point_; }
    const wchar_t* Kind() const { return kind_; }

private:
    const ViewMap& map_;
    POINT pixel_;
    double nearest_ = kCatchRange;
    POINT point_{};
    const wchar_t* kind_ = nullptr;
};

POINT InUnits(double x, double y) {
    return {std::lround(x * kUnitsPerMillimetre), std::lround(y * kUnitsPerMillimetre)};
}

void OfferSymbols(Catch& points, const PlacedPlan& placed, const PlanView& view, POINT pixel) {
    if (const std::optional<POINT> point = placed.Catch(pixel, kCatchRange, view.Transformation()))
        points.Offer(*point, L"Symbolpunkt");
}

/// The point of an edge that is nearest to a place.
Position FootOn(Position from, Position to, Position place) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    if (dx == 0 && dy == 0)
        return from;
    const double along = ((place.x - from.x) * dx + (place.y - from.y) * dy) / (dx * dx + dy * dy);
    const double part = std::clamp(along, 0.0, 1.0);
    return {from.x + part * dx, from.y + part * dy};
}

void OfferWalls(Catch& points, Catch& edges, const Plan& plan, POINT units) {
    const Position place{units.x / static_cast<double>(kUnitsPerMillimetre),
                         units.y / static_cast<double>(kUnitsPerMillimetre)};
    for (const Wall& wall : plan.walls) {
        const std::array<Position, 4> corners = Outline(wall);
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Position& from = corners[i];
            const Position& to = corners[(i + 1) % corners.size()];
            points.Offer(InUnits(from.x, from.y), L"Ecke");
            points.Offer(InUnits((from.x + to.x) / 2, (from.y + to.y) / 2), L"Mitte");
            const Position foot = FootOn(from, to, place);
            edges.Offer(InUnits(foot.x, foot.y), L"Kante");
        }
    }
}

} // namespace

Pointer CatchPoint(const PlanDocument& document, const PlanView& view, POINT pixel, EditorTool& tool) {
    const POINT anchor = tool.Anchor();
    const auto toPixels = [&](LONG units) { return std::lround(units / view.Map().Scale()); };
    const POINT beside{toPixels(anchor.x), toPixels(anchor.y)};
    const POINT at{pixel.x + beside.x, pixel.y + beside.y};
    Catch points(view.Map(), at);
    Catch edges(view.Map(), at);
    const POINT units = view.ToPlan(at);
    if (const PlacedPlan* const placed = tool.Catchable(document))
        OfferSymbols(points, *placed, view, at);
    OfferWalls(points, edges, document.Content(), units);
    if (!points.HasPoint() && !edges.HasPoint() && view.HasGrid())
        edges.Offer(OnGrid(units, GridStep(view.Map().Scale())), L"Raster");
    const Catch& caught = points.HasPoint() ? points : edges;
    if (!caught.HasPoint())
        return {pixel, std::nullopt};
    const POINT there = view.Map().ToPixel(caught.Point());
    return {{there.x - beside.x, there.y - beside.y}, caught.Point(), caught.Kind()};
}
