#include "qsymbol/draw/fitted_drawing.h"

#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using qsymbol::ElementType;
using qsymbol::Symbol;
using support::Calls;
using support::Circle;
using support::Poly;
using support::Text;

/// A symbol whose only line runs along the diagonal from (0, 0) to (1000, 500).
Symbol Diagonal(std::int32_t width, std::int32_t height) {
    Symbol symbol;
    symbol.width = width;
    symbol.height = height;
    symbol.refX = 300;
    symbol.refY = 70;
    symbol.elements.push_back(Poly({{0, 0}, {1000, 500}}));
    return symbol;
}

/// The last output, "" when nothing was asked or drawn.
std::string Fitted(const Symbol& symbol, double boxWidth, double boxHeight) {
    support::RecordingSurface surface;
    qsymbol::DrawFitted(symbol, surface, boxWidth, boxHeight);
    return surface.calls.empty() ? "" : surface.calls.back();
}

TEST(FittedDrawing, WithoutSizeTheTrueExtentStandsIn) {
    // 1020 by 520 with the pen, in 102 pixels.
    EXPECT_EQ(Fitted(Diagonal(0, 0), 102, 102), "Polyline (1,1) (101,51)");
    EXPECT_EQ(Fitted(Diagonal(-10, -10), 102, 102), "Polyline (1,1) (101,51)");
    Symbol away;
    away.elements = {Poly({{5000, -700}, {6000, -200}})};
    EXPECT_EQ(Fitted(away, 102, 102), "Polyline (1,1) (101,51)");
    Symbol circle;
    circle.elements = {Circle({500, 500}, 240)};
    EXPECT_EQ(Fitted(circle, 100, 50), "Ellipse (1,1) (49,49)");
    Symbol quarter; // its circle would be four times as large
    quarter.elements = {support::Arc({0, 0}, 480, {480, 0}, {0, -480})};
    quarter.elements[0].lineWidth = 0;
    EXPECT_EQ(Fitted(quarter, 48, 48), "Arc (-48,0) (48,96) (48,48) (0,0)");
}

TEST(FittedDrawing, NothingToFitDrawsNothing) {
    EXPECT_EQ(Fitted(Diagonal(1000, 500), 0, 100), "");
    EXPECT_EQ(Fitted(Diagonal(1000, 500), 100, 0), "");
    EXPECT_EQ(Fitted(Diagonal(1000, 500), -1, -1), "");
    EXPECT_EQ(Fitted(Diagonal(1000, 500), std::numeric_limits<double>::quiet_NaN(), 5), "");
    EXPECT_EQ(Fitted(Symbol(), 100, 100), "");
    Symbol point;
    point.elements = {Text({5, 5}, u"a")};
    EXPECT_EQ(Fitted(point, 100, 100), "");
}

TEST(FittedDrawing, AHostsErrorPasses) {
    support::RecordingSurface surface;
    surface.failing = "ForeColor";
    EXPECT_EQ(support::ErrorNumberOf([&] { qsymbol::DrawFitted(Diagonal(1000, 500), surface, 100, 100); }),
              438);
}

} // namespace
