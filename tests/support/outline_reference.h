#pragma once

#include "qmath/point.h"
#include "qmath/rect.h"

#include <span>

/// The outline tests done another way, slowly and in 128-bit integers.
namespace support {

bool ReferenceContains(std::span<const qmath::Point> outline, qmath::Point point);
bool ReferenceMeets(std::span<const qmath::Point> outline, const qmath::Rect& rect);

} // namespace support
