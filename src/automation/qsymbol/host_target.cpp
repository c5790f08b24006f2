#include "automation/qsymbol/host_target.h"

HostSurface& HostTarget::OpenSurface() {
    if (!surface_)
        surface_.emplace(com::Required(control_));
    return *surface_;
}

const HostTransformation& HostTarget::OpenTransformation() {
    if (!transformation_)
        transformation_.emplace(com::Required(trans_), &point_);
    return *transformation_;
}
