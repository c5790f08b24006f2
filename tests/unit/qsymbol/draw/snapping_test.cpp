#include "qsymbol/draw/snapping.h"

#include "qmath/math_util.h"
#include "support/elements.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <complex>
#include <random>

namespace {

using qmath::Point;
using qsymbol::CatchPt;
using qsymbol::CaughtPoint;
using qsymbol::Symbol;
using support::Poly;
using support::ScaledTransformation;

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
        Symbol symbol;
        symbol.refX = 100;
        symbol.refY = 200;
        symbol.elements = {Poly({})};
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
