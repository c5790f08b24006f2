#include "qsymbol/geometry/placement.h"

#include "qmath/math_util.h"
#include "qmath/matrix.h"
#include "qmath/vector.h"
#include "support/error_number_of.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>
#include <random>
#include <vector>

namespace {

using qmath::Point;
using qsymbol::Placement;
using support::ErrorNumberOf;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TEST(Placement, IdentityKeepsEveryPoint) {
    const Placement identity;
    for (const Point point : {Point{kLowest, kHighest}, Point{0, 0}, Point{kHighest, kLowest}, Point{-7, 9}})
        EXPECT_EQ(identity.Map(point), point);
    EXPECT_EQ(identity.MapLength(kLowest), kLowest);
    EXPECT_EQ(identity.Angle(), 0);
}

TEST(Placement, MovesTheReferencePointOntoThePosition) {
    const Placement placement({10, 20}, {.at = {1000, 2000}, .angle = 0}, 1);
    EXPECT_EQ(placement.Map({10, 20}), (Point{1000, 2000}));
    EXPECT_EQ(placement.Map({0, 0}), (Point{990, 1980}));
    EXPECT_EQ(placement.Map({13, 25}), (Point{1003, 2005}));
}

TEST(Placement, TurnsCounterClockwiseOnASurfaceWithYDownwards) {
    const Placement placement({0, 0}, {.at = {0, 0}, .angle = qmath::kPi / 2}, 1);
    EXPECT_EQ(placement.Map({100, 0}), (Point{0, -100})); // from right to up
    EXPECT_EQ(placement.Map({0, -100}), (Point{-100, 0}));
    EXPECT_EQ(placement.Angle(), qmath::kPi / 2);
}

TEST(Placement, ScalesAboutTheReferencePoint) {
    const Placement placement({10, 20}, {.at = {1000, 2000}, .angle = 0}, 3);
    EXPECT_EQ(placement.Map({10, 20}), (Point{1000, 2000}));
    EXPECT_EQ(placement.Map({15, 18}), (Point{1015, 1994}));
    EXPECT_EQ(placement.MapLength(7), 21);
    EXPECT_EQ(Placement({0, 0}, {.at = {}, .angle = 0}, 0.5).MapLength(5), 2);
}

TEST(Placement, FactorZeroDrawsAllIntoThePosition) {
    const Placement placement({10, 20}, {.at = {-5, 6}, .angle = 1}, 0);
    EXPECT_EQ(placement.Map({kHighest, kLowest}), (Point{-5, 6}));
    EXPECT_EQ(placement.MapLength(1000), 0);
}

TEST(Placement, ReferencePointNeverDrifts) {
    std::mt19937 random(41);
    std::uniform_int_distribution<std::int32_t> any(kLowest, kHighest);
    std::uniform_real_distribution<double> angle(-1000, 1000);
    std::uniform_real_distribution<double> exponent(-20, 20);
    for (int i = 0; i < 5000; ++i) {
        const Point reference{any(random), any(random)};
        const Point at{any(random), any(random)};
        const Placement placement(reference, {.at = at, .angle = angle(random)},
                                  std::pow(10, exponent(random)));
        ASSERT_EQ(placement.Map(reference), at) << i;
    }
}

TEST(Placement, AgreesWithComplexNumbersAndWithTheMatrix) {
    std::mt19937 random(42);
    std::uniform_int_distribution<std::int32_t> coordinate(-100000, 100000);
    std::uniform_real_distribution<double> angle(-20, 20);
    std::uniform_real_distribution<double> anyFactor(0.01, 50);
    for (int i = 0; i < 5000; ++i) {
        const Point reference{coordinate(random), coordinate(random)};
        const qsymbol::SymbolPosition position{.at = {coordinate(random), coordinate(random)},
                                               .angle = angle(random)};
        const double factor = i % 3 == 0 ? 1 : anyFactor(random);
        const Placement placement(reference, position, factor);
        const Point point{coordinate(random), coordinate(random)};

        const std::complex<double> offset(point.x - reference.x, point.y - reference.y);
        const std::complex<double> expected = std::complex<double>(position.at.x, position.at.y) +
                                              factor * offset * std::polar(1.0, -position.angle);
        const Point mapped = placement.Map(point);
        ASSERT_NEAR(mapped.x, expected.real(), 0.5 + 1e-6) << i;
        ASSERT_NEAR(mapped.y, expected.imag(), 0.5 + 1e-6) << i;

        qmath::Matrix matrix;
        matrix.Translate(-reference.x, -reference.y);
        matrix.Scale(factor, factor);
        matrix.Rotate(std::sin(-position.angle), std::cos(-position.angle));
        matrix.Translate(position.at.x, position.at.y);
        const qmath::Vector byMatrix{matrix.ApplyX(point.x, point.y), matrix.ApplyY(point.x, point.y)};
        ASSERT_NEAR(mapped.x, byMatrix.x, 0.5 + 1e-6) << i;
        ASSERT_NEAR(mapped.y, byMatrix.y, 0.5 + 1e-6) << i;
    }
}

TEST(Placement, ChangingAnglesDoNotInfluenceEachOther) {
    const qsymbol::SymbolPosition right{.at = {}, .angle = 0};
    const qsymbol::SymbolPosition up{.at = {}, .angle = qmath::kPi / 2};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Placement({}, right, 1).Map({7, 0}), (Point{7, 0}));
        EXPECT_EQ(Placement({}, right, 2).Map({7, 0}), (Point{14, 0}));
        EXPECT_EQ(Placement({}, up, 1).Map({7, 0}), (Point{0, -7}));
    }
}

TEST(Placement, ManyPointsAsOneByOne) {
    const Placement placement({3, 4}, {.at = {100, 200}, .angle = 0.7}, 1.5);
    std::vector<Point> points;
    for (std::int32_t i = 0; i < 100; ++i)
        points.push_back({i * 37 % 101, i * 53 % 97});
    std::vector<Point> mapped(points.size());
    placement.Map(points, mapped.data());
    for (std::size_t i = 0; i < points.size(); ++i)
        EXPECT_EQ(mapped[i], placement.Map(points[i]));
}

TEST(Placement, OutsideTheRangeIsError6) {
    EXPECT_EQ(ErrorNumberOf([] { Placement({0, 0}, {.at = {kHighest, 0}, .angle = 0}, 1).Map({1, 0}); }), 6);
    EXPECT_EQ(ErrorNumberOf([] {
                  Placement({kHighest, 0}, {.at = {}, .angle = 0}, 1).Map({kLowest, 0});
              }),
              6);
    EXPECT_EQ(ErrorNumberOf([] { Placement({}, {.at = {}, .angle = 0}, 2).MapLength(kHighest); }), 6);
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ErrorNumberOf([&] { Placement({}, {.at = {}, .angle = infinity}, 1).Map({1, 0}); }), 6);
    EXPECT_EQ(ErrorNumberOf([&] { Placement({}, {.at = {}, .angle = 0}, infinity).Map({1, 0}); }), 6);
}

} // namespace
