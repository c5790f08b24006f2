#pragma once

#include "catalogue.h"
#include "plan_file.h"
#include "plan_hits.h"

/// Draws the plan with the symbols of the catalogue and writes the picture as PNG.
void DrawPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
              const std::filesystem::path& picture);

/// Does the same with the symbols at a place of the picture in a mark colour; returns their names, the
/// topmost first.
std::vector<std::wstring> MarkPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
                                   const PointedAt& place, const std::filesystem::path& picture);
