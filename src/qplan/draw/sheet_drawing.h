#pragma once

#include "qplan/model/sheet.h"
#include "qsymbol/draw/surface.h"
#include "qsymbol/geometry/transformation.h"

/// Drawing of what there is of a plan beside its symbols. Errors of surface and transformation pass through; error 6
/// where a coordinate leaves the 32-bit range.
namespace qplan {

// What lies below the symbols, in this order.
void DrawFloors(const Sheet& sheet, qsymbol::Surface& surface, const qsymbol::Transformation& transformation);
void DrawWalls(const Sheet& sheet, qsymbol::Surface& surface, const qsymbol::Transformation& transformation);
/// The title and the names of the rooms, which lie on top of the symbols.
void DrawLettering(const Sheet& sheet, qsymbol::Surface& surface,
                   const qsymbol::Transformation& transformation);

} // namespace qplan
