#pragma once

#include <windows.h>

#include <vector>

enum class Alignment { Left, Right, Top, Bottom, MiddleAcross, MiddleDown, SpreadAcross, SpreadDown };

/// How far each area moves so that they are aligned with the outermost edge or the middle of all, or so that they stand at
/// equal distances between the outermost two.
std::vector<POINT> AlignedBy(const std::vector<RECT>& areas, Alignment alignment);
