#pragma once

#include "qmath/point.h"
#include "qmath/transform.h"

#include <cstdint>
#include <span>

namespace qsymbol {

/// Contract: the host's map between logical (world) coordinates and the pixels of a surface.
///
/// Every operation passes on the errors of the object behind it; error 6 for a result outside 32 bits.
class Transformation {
public:
    virtual ~Transformation() = default;

    /// Replaces a world point by its pixel.
    virtual void WorldToScreen(qmath::Point& point) const = 0;
    /// WorldToScreen for all points, in order; here so that an adapter can be fast.
    virtual void PointsToScreen(std::span<qmath::Point> points) const {
        for (qmath::Point& point : points)
            WorldToScreen(point);
    }
    /// Replaces a pixel by its world point.
    virtual void ScreenToWorld(qmath::Point& point) const = 0;
    /// A world length in pixels.
    virtual std::int32_t LengthToScreen(std::int32_t length) const = 0;
    /// Character height in pixels for a font size in points; factor is world units to a millimetre.
    virtual std::int32_t FontSizeToScreen(double factor, std::int16_t size) const = 0;

    /// The map as a value where it is one of our own, so that arithmetic can do without calls; nullptr where only
    /// an object knows it.
    virtual const qmath::Transform* Plain() const { return nullptr; }
};

} // namespace qsymbol
