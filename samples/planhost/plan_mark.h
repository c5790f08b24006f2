#pragma once

#include "placed_plan.h"

/// Draws the plan with the symbols at a place of the picture in a mark colour, the topmost at a point, all below a rectangle, and
/// writes the picture by its extension. Returns their names, the topmost first.
std::vector<std::wstring> MarkPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
                                   const PointedAt& place, const std::filesystem::path& picture);
