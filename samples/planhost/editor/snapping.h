#pragma once

#include "editor_tool.h"
#include "plan_view.h"
#include "pointer.h"

/// The nearest point that can be caught near a pixel, or the pixel itself: points of placed symbols, corners, middles and
/// edges of walls, the grid where it is shown. An edge or the grid is caught only where there is no such point. tool: what
/// is being placed; its insertion point is what is caught.
Pointer CatchPoint(const PlanDocument& document, const PlanView& view, POINT pixel, EditorTool& tool);
