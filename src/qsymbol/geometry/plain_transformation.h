#pragma once

#include "qmath/transform.h"
#include "qsymbol/geometry/transformation.h"

namespace qsymbol {

/// The contract over a transformation value of our own.
class PlainTransformation final : public Transformation {
public:
    explicit PlainTransformation(const qmath::Transform& transform) : transform_(transform) {}

    void WorldToScreen(qmath::Point& point) const override { point = transform_.WorldToScreen(point); }
    void PointsToScreen(std::span<qmath::Point> points) const override { transform_.WorldToScreen(points); }
    void ScreenToWorld(qmath::Point& point) const override { point = transform_.ScreenToWorld(point); }
    std::int32_t LengthToScreen(std::int32_t length) const override {
        return transform_.LengthToScreen(length);
    }
    std::int32_t FontSizeToScreen(double factor, std::int16_t size) const override {
        return transform_.FontSizeToScreen(factor, size);
    }
    const qmath::Transform* Plain() const override { return &transform_; }

private:
    qmath::Transform transform_;
};

} // namespace qsymbol
