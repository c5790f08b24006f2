#include "qsymbol/geometry/pixel_reach.h"

#include "qsymbol/geometry/draw_factors.h"

#include <cmath>
#include <limits>

namespace qsymbol {

namespace {

/// Safely inside the 32-bit range, also after both roundings.
constexpr double kSafe = std::numeric_limits<std::int32_t>::max() - 16.0;
/// Both roundings move a point by up to half a unit along each axis; what doubles add is far below.
constexpr double kHalfDiagonal = 0.7072;
constexpr double kRoundingNoise = 1e-3;

} // namespace

PixelReach::PixelReach(double farX, double farY, const SymbolPosition& position, double screenFactor,
                       const qmath::Transform& transform) {
    const double pixel = 1 / transform.Scale();
    const double factor = FactorOrOne(screenFactor);
    x_ = (static_cast<double>(position.at.x) - transform.OffsetX()) * pixel;
    y_ = (static_cast<double>(position.at.y) - transform.OffsetY()) * pixel;
    unit_ = factor * pixel;
    const double inWorld = std::sqrt(farX * farX + farY * farY) * std::abs(factor);
    radius_ = inWorld * pixel;
    slack_ = kHalfDiagonal * (pixel + 1) + kRoundingNoise;
    const double atX = std::abs(static_cast<double>(position.at.x));
    const double atY = std::abs(static_cast<double>(position.at.y));
    isKnown_ = std::isfinite(position.angle) && atX + inWorld < kSafe && atY + inWorld < kSafe &&
               std::abs(x_) + radius_ < kSafe - slack_ && std::abs(y_) + radius_ < kSafe - slack_;
}

} // namespace qsymbol
