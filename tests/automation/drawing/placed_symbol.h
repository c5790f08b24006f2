#pragma once

#include "drawing/drawing_fixture.h"

#include <random>

namespace drawing {

/// Tests of placed symbols by arithmetic; the random ones are the same in every run.
class PlacedSymbolTest : public support::AutomationTest {
protected:
    /// Makes these the factors that the last symbol was drawn with.
    static void SetFactors(double printer, double screen);

    LONG Random(LONG low, LONG high) { return std::uniform_int_distribution<LONG>(low, high)(random); }
    /// Often one of the angles at which things can go wrong.
    double RandomAngle();
    /// 0 for unscaled as well.
    double RandomFactor();
    Place RandomPlace(double factor);
    View RandomView();

    std::mt19937 random{20260519};
};

/// The outline box of a size, placed: world points, and pixels.
std::vector<POINT> WorldBox(const Place& place, LONG width, LONG height);
std::vector<POINT> PixelBox(const Place& place, const View& view, LONG width, LONG height);

} // namespace drawing
