#include "view_map.h"

#include <algorithm>
#include <cmath>

namespace {

// Units for a pixel: finer ones show nothing more, and coarser ones nothing at all.
constexpr double kFinest = 10;
constexpr double kCoarsest = 2'000'000;

std::int64_t PartsOf(double scale) {
    return static_cast<std::int64_t>(std::ceil(std::clamp(scale, kFinest, kCoarsest) * ViewMap::kTile));
}

Ptr<_CTrans> MakeTransformation(double scale, double offsetX, double offsetY) {
    Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(scale));
    Check(transformation->SetOffsetX(std::lround(offsetX)));
    Check(transformation->SetOffsetY(std::lround(offsetY)));
    return transformation;
}

} // namespace

ViewMap ViewMap::Fit(const RECT& area, SIZE pixels, int margin) {
    const double width = static_cast<double>(area.right) - area.left;
    const double height = static_cast<double>(area.bottom) - area.top;
    ViewMap map;
    map.parts_ = PartsOf(std::max(width / std::max<LONG>(pixels.cx - 2 * margin, 1),
                                  height / std::max<LONG>(pixels.cy - 2 * margin, 1)));
    map.origin_ = {std::lround((area.left + width / 2) / map.Scale() - pixels.cx / 2.0),
                   std::lround((area.top + height / 2) / map.Scale() - pixels.cy / 2.0)};
    return map;
}

POINT ViewMap::ToPlan(POINT pixel) const {
    return {std::lround((pixel.x + origin_.x) * Scale()), std::lround((pixel.y + origin_.y) * Scale())};
}

POINT ViewMap::ToPixel(POINT units) const {
    return {std::lround(units.x / Scale()) - origin_.x, std::lround(units.y / Scale()) - origin_.y};
}

RECT ViewMap::ToPixels(const RECT& units) const {
    const POINT leftTop = ToPixel({units.left, units.top});
    const POINT rightBottom = ToPixel({units.right, units.bottom});
    return {leftTop.x, leftTop.y, rightBottom.x, rightBottom.y};
}

void ViewMap::MoveBy(int right, int down) {
    origin_.x -= right;
    origin_.y -= down;
}

void ViewMap::ScaleAbout(POINT pixel, double scale) {
    const double x = (pixel.x + origin_.x) * Scale();
    const double y = (pixel.y + origin_.y) * Scale();
    parts_ = PartsOf(scale);
    origin_ = {std::lround(x / Scale() - pixel.x), std::lround(y / Scale() - pixel.y)};
}

Ptr<_CTrans> ViewMap::Transformation() const {
    return MakeTransformation(Scale(), origin_.x * Scale(), origin_.y * Scale());
}

Ptr<_CTrans> ViewMap::TileTransformation(POINT tile, int fineness) const {
    return MakeTransformation(Scale() / fineness, static_cast<double>(tile.x * parts_),
                              static_cast<double>(tile.y * parts_));
}
