#pragma once

#include "placed_plan.h"
#include "print_layout.h"

/// The map from the plan to a sheet, counted row by row from 0. Its scale is that of the dots across.
Ptr<_CTrans> SheetTransformation(const Paper& paper, const PrintLayout& layout, int sheet);

/// Draws a sheet onto a printer's device context, through a surface that the libraries take for the printer. Fails with the name
/// of a symbol that cannot be drawn. placed: the symbols of the plan.
void DrawSheetForPrinter(HDC printer, const Paper& paper, const PrintLayout& layout, int sheet,
                         const Plan& plan, const PlacedPlan& placed);

/// Draws the same onto a screen, through a picture box.
void DrawSheetOnScreen(HDC dc, const Paper& paper, const PrintLayout& layout, int sheet, const Plan& plan,
                       const PlacedPlan& placed);
