#pragma once

#include "automation/objects/host_surface.h"
#include "automation/objects/host_transformation.h"
#include "qsymbol/tools/drawing_target.h"

#include <optional>

struct qsymbol::HostObjects {
    com::ComPtr<IDispatch> control;
    com::ComPtr<_CTrans> trans;
};

/// The control and the transformation of one event of a host.
class HostTarget final : public qsymbol::DrawingTarget {
public:
    /// point: the tool's own, kept from event to event.
    HostTarget(IDispatch* control, _CTrans* trans, com::ComPtr<_CPt>& point)
        : host_{com::ComPtr<IDispatch>(control), com::ComPtr<_CTrans>(trans)}, point_(point) {}

    qsymbol::Surface& OpenSurface() override;
    const qsymbol::Transformation& OpenTransformation() override;
    const qsymbol::HostObjects& Host() override { return host_; }

private:
    qsymbol::HostObjects host_;
    com::ComPtr<_CPt>& point_;
    std::optional<HostSurface> surface_;
    std::optional<HostTransformation> transformation_;
};
