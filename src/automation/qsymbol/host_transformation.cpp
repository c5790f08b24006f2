#include "automation/qsymbol/host_transformation.h"

#include "automation/qsymbol/math_objects.h"
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
    _CPt* passed = pt.Get();
    com::Check(trans_.PtScreenToWorld(&passed));
    point = GetPoint(passed);
    if (kept_ != nullptr)
        *kept_ = std::move(pt);
}

std::int32_t HostTransformation::LengthToScreen(std::int32_t length) const {
    LONG value = length;
    com::Check(trans_.LengthToScreen(&value));
    return value;
}

std::int32_t HostTransformation::FontSizeToScreen(double factor, std::int16_t size) const {
    LONG value = 0;
    com::Check(trans_.FontSizeToScreen(factor, size, &value));
    return value;
}
