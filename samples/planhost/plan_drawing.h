#pragma once

#include "com.h"
#include "millimetres.h"
#include "plan_file.h"

#include <QMath.h>

/// What a plan is drawn on. The map from plan to pixels is the one that the libraries get as well.
struct Canvas {
    HDC dc;
    SIZE size; ///< in pixels
    _CTrans& transformation;
    int fineness = 1; ///< lines are at least as many pixels wide
};

/// The pixel of a place in millimetres.
POINT ToPixel(const Canvas& canvas, double x, double y);

/// Floors and walls.
void DrawBelowSymbols(const Canvas& canvas, const Plan& plan);
/// The title and the names of the rooms.
void DrawAboveSymbols(const Canvas& canvas, const Plan& plan);
