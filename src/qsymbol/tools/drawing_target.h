#pragma once

#include "qsymbol/draw/surface.h"
#include "qsymbol/geometry/transformation.h"

namespace qsymbol {

/// What a host handed over with one event, as its own objects. Defined by whoever makes targets, for the
/// symbols of the same maker; the tools pass it on and know nothing of it.
struct HostObjects;

/// Contract: the surface and the transformation that a host hands over with one event.
///
/// A tool opens each when it first needs it, so an event that it ignores touches neither. What is opened
/// lives as long as the target. Error 91 for what the host did not hand over.
class DrawingTarget {
public:
    virtual ~DrawingTarget() = default;

    virtual Surface& OpenSurface() = 0;
    virtual const Transformation& OpenTransformation() = 0;
    /// For a symbol that draws in its own way.
    virtual const HostObjects& Host() = 0;
};

} // namespace qsymbol
