#pragma once

#include "catalogue.h"
#include "print_layout.h"

#include <QMath.h>

/// The map from the plan to a sheet, counted row by row from 0. Its scale is that of the dots across.
Ptr<_CTrans> SheetTransformation(const Paper& paper, const PrintLayout& layout, int sheet);

/// Draws a sheet onto a printer's device context, through a surface that the libraries take for the printer.
void DrawSheetForPrinter(HDC printer, const Paper& paper, const PrintLayout& layout, int sheet,
                         const Plan& plan, const std::vector<Ptr<_CSymbol>>& symbols);

/// Draws the same onto a screen, through a picture box.
void DrawSheetOnScreen(HDC dc, const Paper& paper, const PrintLayout& layout, int sheet, const Plan& plan,
                       const std::vector<Ptr<_CSymbol>>& symbols);
