#pragma once

#include "base/byte_sink.h"
#include "base/file_system.h"
#include "qplan/plan/plan.h"

#include <string>

namespace qplan {

/// The whole plan as an SVG picture true to scale: floors, walls, symbols, title and names of rooms, on its sheet or,
/// without one, around its symbols. Each symbol is drawn once and used by its placements. Errors of drawing.
void ComposePlanSvg(const Plan& plan, const base::ByteSink& sink);

/// The same as a file, written beside and renamed. Errors also of FileSystem.
void WritePlanSvg(const Plan& plan, base::FileSystem& files, const std::u16string& path);

} // namespace qplan
