#pragma once

#include "plan_file.h"

/// The part of a sheet of paper that can be printed on, and the printer's dots.
struct Paper {
    SIZE dots;         ///< the area
    double dotsAcross; ///< to a millimetre
    double dotsDown;
};

/// How a plan comes onto paper: to a scale, over as many sheets as it takes.
struct PrintLayout {
    double reduction; ///< 50: 1:50
    int columns;
    int rows;

    int Sheets() const { return columns * rows; }
};

/// reduction: 50 for 1:50; 0: as large as one sheet allows.
PrintLayout LayOutPrint(const Plan& plan, const Paper& paper, double reduction);
