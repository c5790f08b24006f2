#pragma once

#include "automation/qsymbol/host_surface.h"
#include "automation/qsymbol/host_transformation.h"
#include "qsymbol/tools/drawing_target.h"

#include <optional>

/// The control and the transformation of one event of a host.
class HostTarget final : public qsymbol::DrawingTarget {
public:
    /// point: the tool's own, kept from event to event.
    HostTarget(IDispatch* control, _CTrans* trans, com::ComPtr<_CPt>& point)
        : control_(control), trans_(trans), point_(point) {}

    HostSurface& OpenSurface() override;
    const HostTransformation& OpenTransformation() override;

private:
    IDispatch* control_;
    _CTrans* trans_;
    com::ComPtr<_CPt>& point_;
    std::optional<HostSurface> surface_;
    std::optional<HostTransformation> transformation_;
};
