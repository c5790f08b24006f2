#pragma once

#include "base/checked.h"
#include "qmath/point.h"

#include <cstdint>
#include <span>

namespace qmath {

/// Maps logical (world) coordinates to pixels of a surface and back: screen = (world − offset) / scale.
///
/// Both axes run the same way, y downwards. Results are rounded; one outside the 32-bit range is error 6.
class Transform {
public:
    /// World units to a pixel. Error 5 unless positive and finite.
    void SetScale(double scale);
    void SetOffsetX(std::int32_t offset) { offsetX_ = offset; }
    void SetOffsetY(std::int32_t offset) { offsetY_ = offset; }
    double Scale() const { return scale_; }
    std::int32_t OffsetX() const { return static_cast<std::int32_t>(offsetX_); }
    std::int32_t OffsetY() const { return static_cast<std::int32_t>(offsetY_); }

    Point WorldToScreen(Point world) const {
        return {base::RoundToLong((world.x - offsetX_) / scale_),
                base::RoundToLong((world.y - offsetY_) / scale_)};
    }
    /// Converts all points in place.
    void WorldToScreen(std::span<Point> points) const;
    Point ScreenToWorld(Point screen) const {
        return {base::RoundToLong(screen.x * scale_ + offsetX_),
                base::RoundToLong(screen.y * scale_ + offsetY_)};
    }
    /// A world length in pixels.
    std::int32_t LengthToScreen(std::int32_t length) const { return base::RoundToLong(length / scale_); }
    /// Character height in pixels, at least 1, for a font size in points; factor is world units to
    /// a millimetre.
    std::int32_t FontSizeToScreen(double factor, std::int16_t size) const;

private:
    double scale_ = 1;
    // Whole 32-bit numbers kept as doubles, in which the difference of two of them is exact.
    double offsetX_ = 0;
    double offsetY_ = 0;
};

} // namespace qmath
