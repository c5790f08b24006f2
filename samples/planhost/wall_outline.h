#pragma once

#include "plan_file.h"

#include <array>

/// A place on the sheet in millimetres.
struct Position {
    double x, y;
};

/// The four corners of a wall: its middle line, widened by half the thickness to both sides.
std::array<Position, 4> Outline(const Wall& wall);
