#pragma once

#include "../bitmap.h"
#include "view_map.h"

/// The distance of the grid's points in units: 1, 2 or 5 times a power of ten millimetres, never crowded.
LONG GridStep(double unitsPerPixel);

/// The grid's point nearest to a place, in units.
POINT OnGrid(POINT place, LONG step);

/// Darkens the pixels of the grid's points.
void DrawGrid(Bitmap& picture, const ViewMap& map);
