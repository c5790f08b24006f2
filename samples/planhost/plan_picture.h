#pragma once

#include "catalogue.h"
#include "plan_file.h"

/// Draws the plan with the symbols of the catalogue and writes the picture as PNG.
void DrawPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
              const std::filesystem::path& picture);
