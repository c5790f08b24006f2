#include "automation/qsymbol/host_target.h"

qsymbol::Surface& HostTarget::OpenSurface() {
    if (!surface_)
        surface_.emplace(com::Required(host_.control));
    return *surface_;
}

const qsymbol::Transformation& HostTarget::OpenTransformation() {
    if (!transformation_)
        transformation_.emplace(com::Required(host_.trans), &point_);
    return *transformation_;
}
