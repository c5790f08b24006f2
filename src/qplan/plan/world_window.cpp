#include "qplan/plan/world_window.h"

#include "base/error.h"
#include "qmath/outline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace qplan {

namespace {

using Corners = std::array<qmath::Point, 4>;

/// More than rounding moves a pixel, or a world point.
constexpr double kRounding = 1;

WorldBox Window(const PixelWindow& pixels, const qmath::Transform& map) {
    const double unit = map.Scale();
    return WorldBox::Around((pixels.left - kRounding) * unit + map.OffsetX() - kRounding,
                            (pixels.top - kRounding) * unit + map.OffsetY() - kRounding,
                            (pixels.right + kRounding) * unit + map.OffsetX() + kRounding,
                            (pixels.bottom + kRounding) * unit + map.OffsetY() + kRounding);
}

std::array<qmath::Point, 4> CornersOf(const WorldBox& box) {
    return {{{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}}};
}

/// The window's pixels with a margin of whole pixels; nothing outside the 32-bit range.
std::optional<WorldBox> Widened(const PixelWindow& pixels, double margin) {
    constexpr double kLimit = 1 << 30;
    const PixelWindow wide{pixels.left - margin, pixels.top - margin, pixels.right + margin,
                           pixels.bottom + margin};
    if (!(wide.left > -kLimit && wide.top > -kLimit && wide.right < kLimit && wide.bottom < kLimit))
        return std::nullopt;
    return WorldBox::Around(wide.left, wide.top, wide.right, wide.bottom);
}

std::optional<WorldBox> Window(const PixelWindow& pixels, const qsymbol::Transformation& map) {
    constexpr double kWide = 4;
    constexpr double kNeeded = 2;
    constexpr double kUnits = 2;
    const std::optional<WorldBox> wide = Widened(pixels, kWide);
    if (!wide)
        return std::nullopt;
    Corners corners = CornersOf(*wide);
    for (qmath::Point& corner : corners)
        map.ScreenToWorld(corner);
    const auto [left, right] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
    const auto [top, bottom] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
    const WorldBox box = WorldBox::Around(left - kUnits, top - kUnits, right + kUnits, bottom + kUnits);
    // Only the way there counts: its picture of the box must cover the pixels.
    Corners picture = CornersOf(box);
    map.PointsToScreen(picture);
    for (const qmath::Point corner : CornersOf(*Widened(pixels, kNeeded)))
        if (!qmath::OutlineContains(picture, corner))
            return std::nullopt;
    return box;
}

} // namespace

PixelWindow PixelWindow::Around(const qmath::Rect& rect, double margin) {
    const auto [left, right] = std::minmax(rect.left, rect.right);
    const auto [top, bottom] = std::minmax(rect.top, rect.bottom);
    return {left - margin, top - margin, right + margin, bottom + margin};
}

WorldBox InnerWindow(const PixelWindow& pixels, const qsymbol::Transformation& transformation) {
    WorldBox inner{1, 1, 0, 0};
    const qmath::Transform* const map = transformation.Plain();
    if (map == nullptr)
        return inner;
    // Boxes are cut off at the 32-bit range: of one that reaches to its end nothing is known.
    constexpr double kInwards = 2 * kRounding;
    constexpr double kEnd = std::numeric_limits<std::int32_t>::max() - kInwards;
    const auto edge = [&](double pixel, double offset, double inwards) {
        return std::clamp((pixel + inwards) * map->Scale() + offset + inwards, -kEnd, kEnd);
    };
    const double left = edge(pixels.left, map->OffsetX(), kInwards);
    const double top = edge(pixels.top, map->OffsetY(), kInwards);
    const double right = edge(pixels.right, map->OffsetX(), -kInwards);
    const double bottom = edge(pixels.bottom, map->OffsetY(), -kInwards);
    if (left < right && top < bottom)
        inner = {static_cast<std::int32_t>(std::ceil(left)), static_cast<std::int32_t>(std::ceil(top)),
                 static_cast<std::int32_t>(std::floor(right)), static_cast<std::int32_t>(std::floor(bottom))};
    return inner;
}

std::optional<WorldBox> WorldWindow(const PixelWindow& pixels,
                                    const qsymbol::Transformation& transformation) {
    if (!std::isfinite(pixels.left + pixels.top + pixels.right + pixels.bottom))
        return std::nullopt;
    if (const qmath::Transform* const plain = transformation.Plain())
        return Window(pixels, *plain);
    try {
        return Window(pixels, transformation);
    } catch (const base::Error&) {
        return std::nullopt; // asking will show what there is to show
    }
}

} // namespace qplan
