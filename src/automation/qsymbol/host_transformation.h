#pragma once

#include "com/error_info.h"
#include "qsymbol/geometry/transformation.h"

#include <QMath.h>

/// The transformation contract over the CTrans of a host.
class HostTransformation final : public qsymbol::Transformation {
public:
    explicit HostTransformation(_CTrans& trans) : trans_(trans) {}

    /// The host's object itself, for a symbol that draws in its own way.
    _CTrans& Trans() const { return trans_; }

    void WorldToScreen(qmath::Point& point) const override {
        LONG x = point.x;
        LONG y = point.y;
        com::Check(trans_.WorldToScreen(&x, &y));
        point = {x, y};
    }
    void PointsToScreen(std::span<qmath::Point> points) const override;
    void ScreenToWorld(qmath::Point& point) const override;
    std::int32_t LengthToScreen(std::int32_t length) const override;
    std::int32_t FontSizeToScreen(double factor, std::int16_t size) const override;

private:
    _CTrans& trans_;
};
