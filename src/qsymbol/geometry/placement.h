#pragma once

#include "base/checked.h"
#include "qmath/point.h"
#include "qsymbol/geometry/draw_factors.h"
#include "qsymbol/geometry/symbol_position.h"

#include <cstdint>
#include <span>

namespace qsymbol {

/// The map from a symbol's own coordinates to the world: L + R(factor·(p − Ref)).
///
/// The symbol is scaled and turned about its reference point, which lands exactly on the insertion point. R
/// turns by minus the angle, since y grows downwards. Results are rounded; error 6 outside the 32-bit range.
class Placement {
public:
    /// The identity: every point stays where it is.
    Placement() = default;
    Placement(qmath::Point reference, const SymbolPosition& position, double factor);

    double Angle() const { return angle_; }

    qmath::Point Map(qmath::Point point) const {
        const double x = point.x - refX_;
        const double y = point.y - refY_;
        return {base::RoundToLong(atX_ + (cosine_ * x - sine_ * y)),
                base::RoundToLong(atY_ + (sine_ * x + cosine_ * y))};
    }
    /// Maps all points into an array of the same length.
    void Map(std::span<const qmath::Point> points, qmath::Point* mapped) const;
    /// A length scaled by the factor.
    std::int32_t MapLength(std::int32_t length) const { return base::RoundToLong(length * factor_); }

private:
    // The factor is in sine and cosine; p − Ref is exact in a double, so the reference point never drifts.
    double cosine_ = 1;
    double sine_ = 0;
    double refX_ = 0;
    double refY_ = 0;
    double atX_ = 0;
    double atY_ = 0;
    double angle_ = 0;
    double factor_ = 1;
};

/// The placement that bounds, hit tests, snapping and DXF use, whatever the surface; a screen factor of 0
/// leaves the symbol unscaled.
inline Placement SurfaceFreePlacement(qmath::Point reference, const SymbolPosition& position,
                                      double screenFactor) {
    return {reference, position, FactorOrOne(screenFactor)};
}

} // namespace qsymbol
