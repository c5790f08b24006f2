#include "qsymbol/draw/fitted_drawing.h"

#include "qsymbol/draw/symbol_extent.h"
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

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

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

TEST(FittedDrawing, FillsTheBoxInItsLimitingDirection) {
    EXPECT_EQ(Fitted(Diagonal(1000, 500), 100, 100), "Polyline (0,0) (100,50)"); // relatively wider: widths
    EXPECT_EQ(Fitted(Diagonal(1000, 500), 400, 100),
              "Polyline (0,0) (200,100)"); // relatively higher: heights
    EXPECT_EQ(Fitted(Diagonal(1000, 500), 200, 100), "Polyline (0,0) (200,100)"); // the same shape
    EXPECT_EQ(Fitted(Diagonal(2000, 500), 100, 100), "Polyline (0,0) (50,25)");   // the nominal size rules
}

TEST(FittedDrawing, ABoxMayBeSmallerThanItsFraction) {
    EXPECT_EQ(Fitted(Diagonal(1000, 500), 50.5, 1000), "Polyline (0,0) (50,25)");
}

TEST(FittedDrawing, FlatSymbolsAreFittedByTheirWidth) {
    EXPECT_EQ(Fitted(Diagonal(1000, 0), 100, 10), "Polyline (0,0) (100,50)");
    // Ratio 0.00005: by the widths, although the box is flatter still.
    EXPECT_EQ(Fitted(Diagonal(2000000, 100), 100000, 1), "Polyline (0,0) (50,25)");
    // Ratio 0.0002: by the heights.
    EXPECT_EQ(Fitted(Diagonal(500000, 100), 100000, 1), "Polyline (0,0) (10,5)");
}

TEST(FittedDrawing, WithoutWidthTheHeightRules) {
    EXPECT_EQ(Fitted(Diagonal(0, 500), 10, 100), "Polyline (0,0) (200,100)");
    EXPECT_EQ(Fitted(Diagonal(-5, 500), 10, 100), "Polyline (0,0) (200,100)");
}

TEST(FittedDrawing, WithoutSizeTheExtentOfThePointsStandsIn) {
    EXPECT_EQ(Fitted(Diagonal(0, 0), 100, 100), "Polyline (0,0) (100,50)");
    EXPECT_EQ(Fitted(Diagonal(-10, -10), 100, 100), "Polyline (0,0) (100,50)");
    Symbol away;
    away.elements = {Poly({{5000, -700}, {6000, -200}})};
    EXPECT_EQ(Fitted(away, 100, 100), "Polyline (0,0) (100,50)");
    Symbol circle;
    circle.elements = {Circle({500, 500}, 250)};
    EXPECT_EQ(Fitted(circle, 100, 50), "Ellipse (0,0) (50,50)");
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

TEST(FittedDrawing, OwnColoursAndBothFactorsOne) {
    support::RecordingSurface surface;
    surface.name = u"GraphicBox";
    qsymbol::DrawFitted(Diagonal(1000, 500), surface, 100, 100);
    EXPECT_EQ(surface.calls, (Calls{"DrawMode?", "Kind?", "Name?", "ForeColor=11", "DrawWidth=2",
                                    "DrawStyle=0", "FillColor=0", "FillStyle=1", "Polyline (0,0) (100,50)"}));
}

TEST(FittedDrawing, AHostsErrorPasses) {
    support::RecordingSurface surface;
    surface.failing = "ForeColor";
    EXPECT_EQ(support::ErrorNumberOf([&] { qsymbol::DrawFitted(Diagonal(1000, 500), surface, 100, 100); }),
              438);
}

TEST(SymbolExtent, AroundWhatIsDrawn) {
    Symbol symbol;
    EXPECT_EQ(qsymbol::SymbolExtent(symbol), (qmath::Rect{0, 0, 0, 0}));
    symbol.elements = {support::Element(ElementType::Undefined, {{-9000, 9000}}),
                       support::Element(ElementType::Poly, {}), support::Element(ElementType::Circle, {}),
                       Poly({{10, 20}, {30, 5}})};
    EXPECT_EQ(qsymbol::SymbolExtent(symbol), (qmath::Rect{10, 5, 30, 20}));
    symbol.elements.push_back(Text({-3, 40}, u"a"));
    EXPECT_EQ(qsymbol::SymbolExtent(symbol), (qmath::Rect{-3, 5, 30, 40}));
    symbol.elements.push_back(support::Arc({0, 0}, -50, {1, 1}, {2, 2}));
    EXPECT_EQ(qsymbol::SymbolExtent(symbol), (qmath::Rect{-50, -50, 50, 50}));
    symbol.elements.push_back(Circle({kLowest + 5, kHighest - 5}, kHighest));
    EXPECT_EQ(qsymbol::SymbolExtent(symbol), (qmath::Rect{kLowest, -50, 50, kHighest}));
}

} // namespace
