#pragma once

#include "base/file_system.h"
#include "qplan/plan/plan.h"

#include <functional>
#include <string>
#include <string_view>

namespace qplan {

/// Takes a file's bytes piece by piece.
using ByteSink = std::function<void(std::string_view)>;

/// The whole plan as an SVG picture true to scale: floors, walls, symbols, title and names of rooms, on its sheet or,
/// without one, around what is drawn. Errors of drawing.
void ComposePlanSvg(const Plan& plan, const ByteSink& sink);

/// The same as a file, written beside and renamed. Errors also of FileSystem.
void WritePlanSvg(const Plan& plan, base::FileSystem& files, const std::u16string& path);

} // namespace qplan
