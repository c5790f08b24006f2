#include "automation/qsymbol/host_target.h"

#include "com/error_info.h"

qsymbol::Surface& HostTarget::OpenSurface() {
    if (!surface_)
        surface_.emplace(com::Required(host_.control.Get()));
    return *surface_;
}

const qsymbol::Transformation& HostTarget::OpenTransformation() {
    if (!transformation_)
        transformation_.emplace(com::Required(host_.trans.Get()), &point_);
    return *transformation_;
}
