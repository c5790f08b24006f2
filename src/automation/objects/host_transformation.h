#pragma once

#include "com/object_call.h"
#include "qsymbol/geometry/transformation.h"

#include <QMath.h>

/// The transformation contract over the CTrans of a host.
class HostTransformation final : public qsymbol::Transformation {
public:
    /// kept: where the point object of ScreenToWorld lies between its uses, so that not every mouse event
    /// makes one; may be missing.
    explicit HostTransformation(_CTrans& trans, com::ComPtr<_CPt>* kept = nullptr)
        : trans_(&trans), kept_(kept) {}

    void WorldToScreen(qmath::Point& point) const override {
        LONG x = point.x;
        LONG y = point.y;
        com::Call(*trans_, &_CTrans::WorldToScreen, &x, &y);
        point = {x, y};
    }
    void PointsToScreen(std::span<qmath::Point> points) const override;
    void ScreenToWorld(qmath::Point& point) const override;
    std::int32_t LengthToScreen(std::int32_t length) const override;
    std::int32_t FontSizeToScreen(double factor, std::int16_t size) const override;

private:
    com::ComPtr<_CTrans> trans_;
    com::ComPtr<_CPt>* kept_;
};
