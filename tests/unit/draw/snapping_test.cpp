#include "qsymbol/draw/snapping.h"

#include "qmath/math_util.h"
#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <complex>
#include <limits>
#include <random>

namespace {

using qmath::Point;
using qsymbol::CatchPt;
using qsymbol::CaughtPoint;
using qsymbol::ElementType;
using qsymbol::Symbol;
using support::Arc;
using support::Circle;
using support::Poly;
using support::ScaledTransformation;
using support::Text;

constexpr qsymbol::SymbolPosition kAt{.at = {1000, 2000}, .angle = 0};

Symbol SymbolOf(std::vector<qsymbol::ElementRecord> elements) {
    Symbol symbol;
    symbol.refX = 100;
    symbol.refY = 200;
    symbol.elements = std::move(elements);
    return symbol;
}

/// The caught world point, at ten world units to a pixel; (-1, -1) for none.
Point Caught(const Symbol& symbol, float x, float y, std::int16_t range,
             const qsymbol::SymbolPosition& position = kAt, double factor = 0) {
    const std::optional<CaughtPoint> caught =
        CatchPt(symbol, position, factor, ScaledTransformation(10), x, y, range);
    return caught ? caught->world : Point{-1, -1};
}

constexpr Point kNone{-1, -1};

TEST(Snapping, GivesTheExactWorldPointAndItsPixel) {
    const Symbol symbol = SymbolOf({Poly({{103, 204}, {500, 500}})});
    const std::optional<CaughtPoint> caught = CatchPt(symbol, kAt, 0, ScaledTransformation(10), 98, 202, 5);
    ASSERT_TRUE(caught.has_value());
    EXPECT_EQ(caught->world, (Point{1003, 2004}));
    EXPECT_EQ(caught->screen, (Point{100, 200}));
}

TEST(Snapping, TheRangeIsASquareWithoutItsEdge) {
    const Symbol symbol = SymbolOf({Poly({{100, 200}})});
    const Point hit{1000, 2000};
    EXPECT_EQ(Caught(symbol, 104, 204, 5), hit); // farther than 5 as the crow flies
    EXPECT_EQ(Caught(symbol, 105, 200, 5), kNone);
    EXPECT_EQ(Caught(symbol, 95, 200, 5), kNone);
    EXPECT_EQ(Caught(symbol, 100, 205, 5), kNone);
    EXPECT_EQ(Caught(symbol, 100, 195, 5), kNone);
    EXPECT_EQ(Caught(symbol, 104.99F, 195.01F, 5), hit);
}

TEST(Snapping, WithoutRangeNothingIsCaught) {
    const Symbol symbol = SymbolOf({Poly({{100, 200}})});
    EXPECT_EQ(Caught(symbol, 100, 200, 0), kNone);
    EXPECT_EQ(Caught(symbol, 100, 200, -5), kNone);
    EXPECT_EQ(Caught(symbol, 100, 200, 1), (Point{1000, 2000}));
    EXPECT_EQ(Caught(symbol, std::numeric_limits<float>::quiet_NaN(), 200, 32767), kNone);
}

TEST(Snapping, TheFirstListedWinsNotTheNearest) {
    EXPECT_EQ(Caught(SymbolOf({Poly({{120, 200}, {100, 200}})}), 100, 200, 5), (Point{1020, 2000}));
    EXPECT_EQ(Caught(SymbolOf({Circle({120, 200}, 5), Poly({{100, 200}})}), 100, 200, 5),
              (Point{1020, 2000}));
}

TEST(Snapping, Candidates) {
    EXPECT_EQ(Caught(SymbolOf({Circle({100, 200}, 50)}), 100, 200, 1), (Point{1000, 2000}));
    EXPECT_EQ(Caught(SymbolOf({Circle({100, 200}, 50)}), 105, 200, 1), kNone); // not the circle itself
    const Symbol arc = SymbolOf({Arc({100, 200}, 50, {150, 200}, {100, 150})});
    EXPECT_EQ(Caught(arc, 100, 200, 1), (Point{1000, 2000}));
    EXPECT_EQ(Caught(arc, 105, 200, 1), (Point{1050, 2000}));
    EXPECT_EQ(Caught(arc, 100, 195, 1), (Point{1000, 1950}));
    EXPECT_EQ(Caught(arc, 100, 200, 20), (Point{1000, 2000})); // the centre comes first
    EXPECT_EQ(Caught(SymbolOf({Text({100, 200}, u"a")}), 100, 200, 5), kNone);
    EXPECT_EQ(Caught(SymbolOf({support::Element(ElementType::Undefined, {{100, 200}})}), 100, 200, 5), kNone);
    EXPECT_EQ(
        Caught(SymbolOf({support::Element(ElementType::Circle, {{900, 900}, {100, 200}})}), 100, 200, 5),
        kNone);
    EXPECT_EQ(Caught(SymbolOf({support::Element(ElementType::Arc, {{900, 900}, {100, 200}})}), 100, 200, 5),
              (Point{1000, 2000}));
}

TEST(Snapping, NothingWithoutElementsOrPoints) {
    EXPECT_EQ(Caught(SymbolOf({}), 100, 200, 32767), kNone);
    EXPECT_EQ(
        Caught(SymbolOf({support::Element(ElementType::Circle, {}), support::Element(ElementType::Arc, {}),
                         support::Element(ElementType::Poly, {})}),
               100, 200, 32767),
        kNone);
}

TEST(Snapping, FollowsAngleAndFactor) {
    const Symbol symbol = SymbolOf({Poly({{200, 200}})});
    const qsymbol::SymbolPosition up{.at = {1000, 2000}, .angle = qmath::kPi / 2};
    EXPECT_EQ(Caught(symbol, 100, 190, 1, up), (Point{1000, 1900}));
    EXPECT_EQ(Caught(symbol, 100, 180, 1, up, 2), (Point{1000, 1800}));
    EXPECT_EQ(Caught(symbol, 110, 200, 1, kAt, 0), (Point{1100, 2000}));
}

TEST(Snapping, APointBeyondTheRangeIsError6UnlessAnEarlierOneIsCaught) {
    const Symbol symbol = SymbolOf({Poly({{100, 200}, {2147483647, 0}})});
    EXPECT_EQ(Caught(symbol, 100, 200, 5), (Point{1000, 2000}));
    EXPECT_EQ(support::ErrorNumberOf([&] { Caught(symbol, 500, 200, 5); }), 6);
}

TEST(Snapping, AgreesWithIndependentArithmetic) {
    std::mt19937 random(81);
    std::uniform_int_distribution<std::int32_t> world(-100000, 100000);
    std::uniform_int_distribution<std::int32_t> own(0, 3000);
    std::uniform_int_distribution<int> degrees(-360, 360);
    std::uniform_int_distribution<std::int32_t> near(-60, 60);
    std::uniform_int_distribution<std::int16_t> ranges(0, 40);
    const std::array<double, 4> factors{0, 1, 0.37, 2.5};
    int caughtCount = 0;
    constexpr int kRounds = 5000;
    for (int i = 0; i < kRounds; ++i) {
        Symbol symbol = SymbolOf({Poly({})});
        for (int k = 0; k < 12; ++k)
            symbol.elements[0].points.push_back({own(random), own(random)});
        const qsymbol::SymbolPosition position{.at = {world(random), world(random)},
                                               .angle = qmath::DegToRad(degrees(random))};
        const double factor = factors[static_cast<std::size_t>(i) % factors.size()];
        const double scale = 25;
        const double x = std::nearbyint(position.at.x / scale) + near(random);
        const double y = std::nearbyint(position.at.y / scale) + near(random);
        const std::int16_t range = ranges(random);

        std::optional<CaughtPoint> expected;
        for (const Point point : symbol.elements[0].points) {
            const std::complex<double> offset(point.x - symbol.refX, point.y - symbol.refY);
            const std::complex<double> turned =
                (factor == 0 ? 1 : factor) * offset * std::polar(1.0, -position.angle);
            const double worldX = std::nearbyint(position.at.x + turned.real());
            const double worldY = std::nearbyint(position.at.y + turned.imag());
            const double screenX = std::nearbyint(worldX / scale);
            const double screenY = std::nearbyint(worldY / scale);
            if (std::abs(screenX - x) < range && std::abs(screenY - y) < range) {
                expected =
                    CaughtPoint{{static_cast<std::int32_t>(worldX), static_cast<std::int32_t>(worldY)},
                                {static_cast<std::int32_t>(screenX), static_cast<std::int32_t>(screenY)}};
                break;
            }
        }
        const std::optional<CaughtPoint> caught =
            CatchPt(symbol, position, factor, ScaledTransformation(scale), static_cast<float>(x),
                    static_cast<float>(y), range);
        ASSERT_EQ(caught.has_value(), expected.has_value()) << i;
        if (expected) {
            ASSERT_EQ(caught->world, expected->world) << i;
            ASSERT_EQ(caught->screen, expected->screen) << i;
        }
        caughtCount += expected.has_value();
    }
    EXPECT_GT(caughtCount, kRounds / 10);
    EXPECT_LT(caughtCount, kRounds - kRounds / 10);
}

} // namespace
