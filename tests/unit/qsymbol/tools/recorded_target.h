#pragma once

#include "qsymbol/tools/drawing_target.h"
#include "support/recording_surface.h"
#include "support/scaled_transformation.h"

/// Here there is no host.
struct qsymbol::HostObjects {};

namespace tools {

/// One event on a recording surface, a scale of world units to the pixel, no offset.
class RecordedTarget final : public qsymbol::DrawingTarget {
public:
    RecordedTarget(support::RecordingSurface& surface, double scale)
        : surface_(surface), transformation_(support::ScaledTransformation(scale)) {}

    qsymbol::Surface& OpenSurface() override {
        ++surfacesOpened;
        return surface_;
    }
    const qsymbol::Transformation& OpenTransformation() override {
        ++transformationsOpened;
        return transformation_;
    }
    const qsymbol::HostObjects& Host() override { return nothing_; }

    int surfacesOpened = 0;
    int transformationsOpened = 0;

private:
    support::RecordingSurface& surface_;
    qsymbol::PlainTransformation transformation_;
    qsymbol::HostObjects nothing_;
};

} // namespace tools
