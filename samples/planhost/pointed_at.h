#pragma once

#include <windows.h>

/// What the user points at in the picture of a plan, in pixels: one of them or a rectangle.
struct PointedAt {
    RECT pixels;
    bool isPoint;
};
