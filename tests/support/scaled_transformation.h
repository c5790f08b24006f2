#pragma once

#include "qsymbol/geometry/plain_transformation.h"

namespace support {

/// World units to a pixel and the world point at the surface's origin.
inline qsymbol::PlainTransformation ScaledTransformation(double scale, qmath::Point origin = {}) {
    qmath::Transform transform;
    transform.SetScale(scale);
    transform.SetOffsetX(origin.x);
    transform.SetOffsetY(origin.y);
    return qsymbol::PlainTransformation(transform);
}

} // namespace support
