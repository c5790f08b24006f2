#include "qsymbol/check/drawn_extent.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace qsymbol {

namespace {

class Box {
public:
    bool IsEmpty() const { return empty_; }
    const DrawnExtent& Extent() const { return extent_; }

    void Include(double x, double y, double reach) {
        if (empty_)
            extent_ = {x, y, x, y};
        empty_ = false;
        extent_.left = std::min(extent_.left, x - reach);
        extent_.top = std::min(extent_.top, y - reach);
        extent_.right = std::max(extent_.right, x + reach);
        extent_.bottom = std::max(extent_.bottom, y + reach);
    }

private:
    DrawnExtent extent_;
    bool empty_ = true;
};

/// The direction from the centre to a point as it is seen, y downwards: radians counter-clockwise.
double Direction(qmath::Point centre, qmath::Point point) {
    return std::atan2(static_cast<double>(centre.y) - point.y, static_cast<double>(point.x) - centre.x);
}

/// The arc runs counter-clockwise on the screen; one that ends in its own direction is a whole circle.
void IncludeArc(Box& box, const ElementRecord& arc, double pen) {
    const qmath::Point centre = arc.points[0];
    const double radius = std::abs(static_cast<double>(arc.radius));
    const double start = Direction(centre, arc.points[1]);
    constexpr double kTurn = 2 * std::numbers::pi;
    double sweep = Direction(centre, arc.points[2]) - start;
    if (sweep <= 0)
        sweep += kTurn;
    const auto include = [&](double x, double y) {
        box.Include(centre.x + radius * x, centre.y - radius * y, pen);
    };
    include(std::cos(start), std::sin(start));
    include(std::cos(start + sweep), std::sin(start + sweep));
    constexpr std::array<std::array<int, 2>, 4> kAxes = {{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
    for (std::size_t i = 0; i < kAxes.size(); ++i) {
        const double fromStart = static_cast<double>(i) * kTurn / 4 - start;
        if (fromStart - kTurn * std::floor(fromStart / kTurn) <= sweep)
            include(kAxes[i][0], kAxes[i][1]);
    }
}

} // namespace

bool FindDrawnExtent(const Symbol& symbol, DrawnExtent& extent) {
    Box box;
    for (const ElementRecord& element : symbol.elements) {
        const double pen = std::max(element.lineWidth, 0) / 2.0;
        const std::size_t points = element.points.size();
        if (element.type == ElementType::Poly && points >= 2)
            for (const qmath::Point point : element.points)
                box.Include(point.x, point.y, pen);
        else if (element.type == ElementType::Circle && points >= 1)
            box.Include(element.points[0].x, element.points[0].y,
                        std::abs(static_cast<double>(element.radius)) + pen);
        else if (element.type == ElementType::Arc && points >= 3)
            IncludeArc(box, element, pen);
    }
    extent = box.Extent();
    return !box.IsEmpty();
}

} // namespace qsymbol
