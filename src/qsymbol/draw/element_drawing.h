#pragma once

#include "qmath/point.h"
#include "qsymbol/draw/surface.h"
#include "qsymbol/geometry/transformation.h"
#include "qsymbol/model/element_record.h"

#include <cstddef>
#include <functional>
#include <span>

/// Drawing of an editor's elements, whose points are world coordinates. Errors of surface and transformation
/// pass through; error 6 where a pixel leaves the 32-bit range.
namespace qsymbol {

/// An element without a point list is one without points: it draws nothing.
void DrawElement(const ElementRecord& element, Surface& surface, const Transformation& transformation);

/// Draws count elements in copy mode in their order as one draw call; element(i) gives the i-th, from 0.
void DrawElements(std::size_t count, const std::function<ElementRecord(std::size_t)>& element,
                  Surface& surface, const Transformation& transformation);

/// Inverts a square of 7 by 7 pixels on each point; a second time restores the surface.
void DrawTracker(std::span<const qmath::Point> points, Surface& surface,
                 const Transformation& transformation);

} // namespace qsymbol
