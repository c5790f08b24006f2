#pragma once

#include "base/checked.h"
#include "qsymbol/geometry/transformation.h"

#include <cmath>

namespace support {

/// A host's map that turns, mirrors and scales both axes differently: pixel = (a·x + b·y + atX, c·x + d·y + atY).
class AffineTransformation final : public qsymbol::Transformation {
public:
    double a = 1, b = 0, c = 0, d = 1, atX = 0, atY = 0;
    bool leadsBack = true; ///< false: ScreenToWorld gives anything

    void WorldToScreen(qmath::Point& point) const override {
        point = {base::RoundToLong(a * point.x + b * point.y + atX),
                 base::RoundToLong(c * point.x + d * point.y + atY)};
    }
    void ScreenToWorld(qmath::Point& point) const override {
        if (!leadsBack) {
            point = {point.y - 7, point.x};
            return;
        }
        const double x = point.x - atX;
        const double y = point.y - atY;
        point = {base::RoundToLong((d * x - b * y) / Area()), base::RoundToLong((a * y - c * x) / Area())};
    }
    std::int32_t LengthToScreen(std::int32_t length) const override {
        return base::RoundToLong(length * std::sqrt(std::abs(Area())));
    }
    std::int32_t FontSizeToScreen(double factor, std::int16_t size) const override {
        return base::RoundToLong(size * factor * 25.4 / 72 * std::sqrt(std::abs(Area())));
    }

private:
    double Area() const { return a * d - b * c; }
};

} // namespace support
