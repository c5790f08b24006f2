#pragma once

#include "base/byte_sink.h"
#include "base/file_system.h"
#include "qplan/plan/plan.h"
#include "qsymbol/drawing/drawing_unit.h"

#include <string>

namespace qplan {

/// The plan as a complete DXF drawing: a block for each symbol, an insert for each placement on the layer SYMBOLE, walls
/// on WAENDE, floors on BOEDEN, title and names of rooms on RAEUME. Errors of drawing.
void ComposePlanDxf(const Plan& plan, qsymbol::DrawingUnit unit, const base::ByteSink& sink);

/// The same as a file, written beside and renamed. Errors also of FileSystem.
void WritePlanDxf(const Plan& plan, qsymbol::DrawingUnit unit, base::FileSystem& files,
                  const std::u16string& path);

} // namespace qplan
