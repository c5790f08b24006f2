#pragma once

#include "qplan/model/sheet.h"
#include "qsymbol/draw/surface.h"
#include "qsymbol/geometry/transformation.h"

#include <array>

namespace qplan {

/// A place on the sheet in millimetres.
struct SheetPoint {
    double x = 0;
    double y = 0;
};

/// The four corners of a wall: its middle line, widened by half the thickness to both sides.
std::array<SheetPoint, 4> OutlineOf(const Wall& wall);

/// Floors, then walls: what lies below the symbols. Errors of surface and transformation, 6.
void DrawGround(const Sheet& sheet, qsymbol::Surface& surface, const qsymbol::Transformation& transformation);
/// The title and the names of the rooms, which lie on top of the symbols.
void DrawLettering(const Sheet& sheet, qsymbol::Surface& surface,
                   const qsymbol::Transformation& transformation);

} // namespace qplan
