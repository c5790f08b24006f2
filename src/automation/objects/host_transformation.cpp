#include "automation/objects/host_transformation.h"

#include "automation/objects/math_objects.h"
#include "automation/shared/point_access.h"

#include <utility>

void HostTransformation::PointsToScreen(std::span<qmath::Point> points) const {
    for (qmath::Point& point : points)
        HostTransformation::WorldToScreen(point);
}

void HostTransformation::ScreenToWorld(qmath::Point& point) const {
    // Taken out for the time: the host may send the next event from inside.
    com::ComPtr<_CPt> pt = kept_ == nullptr ? nullptr : std::move(*kept_);
    if (pt)
        SetPoint(pt.Get(), point);
    else
        pt = math_objects::NewPoint(point);
    com::Call(*trans_, &_CTrans::PtScreenToWorld, pt.InOut());
    point = GetPoint(pt.Get());
    if (kept_ != nullptr)
        *kept_ = std::move(pt);
}

std::int32_t HostTransformation::LengthToScreen(std::int32_t length) const {
    LONG value = length;
    com::Call(*trans_, &_CTrans::LengthToScreen, &value);
    return value;
}

std::int32_t HostTransformation::FontSizeToScreen(double factor, std::int16_t size) const {
    LONG value = 0;
    com::Call(*trans_, &_CTrans::FontSizeToScreen, factor, size, &value);
    return value;
}
