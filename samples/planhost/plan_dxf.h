#pragma once

#include "catalogue.h"
#include "plan_file.h"

/// Writes the plan as a DXF file of release 12 in centimetres: walls, room names and the catalogue's symbols.
void ExportPlan(const Plan& plan, _CSymbolColl& catalogue, const std::filesystem::path& file);
