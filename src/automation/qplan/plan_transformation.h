#pragma once

#include "automation/objects/host_transformation.h"
#include "qmath/transform.h"

#include <optional>

/// The transformation of one call of a plan: by value where it is one of QMath, else the host's object.
class PlanTransformation final : public qsymbol::Transformation {
public:
    explicit PlanTransformation(_CTrans& trans);

    /// The object itself, for symbols that are objects as well.
    _CTrans& Object() const { return *trans_; }

    void WorldToScreen(qmath::Point& point) const override;
    void PointsToScreen(std::span<qmath::Point> points) const override;
    void ScreenToWorld(qmath::Point& point) const override;
    std::int32_t LengthToScreen(std::int32_t length) const override;
    std::int32_t FontSizeToScreen(double factor, std::int16_t size) const override;
    const qmath::Transform* Plain() const override { return plain_ ? &*plain_ : nullptr; }

private:
    com::ComPtr<_CTrans> trans_;
    HostTransformation host_;
    std::optional<qmath::Transform> plain_;
};
