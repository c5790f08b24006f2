#pragma once

#include "qplan/export/plan_svg.h"
#include "qsymbol/drawing/drawing_unit.h"

namespace qplan {

/// The plan as a complete DXF drawing: a block for each symbol, an insert for each placement on the layer SYMBOLE, walls
/// (WAENDE), floors (BOEDEN), title and names of rooms (RAEUME). Errors of drawing.
void ComposePlanDxf(const Plan& plan, qsymbol::DrawingUnit unit, const ByteSink& sink);

/// The same as a file, written beside and renamed. Errors also of FileSystem.
void WritePlanDxf(const Plan& plan, qsymbol::DrawingUnit unit, base::FileSystem& files,
                  const std::u16string& path);

} // namespace qplan
