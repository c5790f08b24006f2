#include "qsymbol/draw/hit_test.h"

#include "qmath/math_util.h"
#include "support/error_number_of.h"
#include "support/outline_reference.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <complex>
#include <limits>
#include <random>

namespace {

using qmath::Point;
using qmath::Rect;
using qsymbol::ObjIdentByPt;
using qsymbol::ObjIdentByRect;
using qsymbol::Symbol;
using qsymbol::SymbolPosition;
using support::ScaledTransformation;

/// 400 by 300, the reference point at (100, 50).
Symbol Box() {
    Symbol symbol;
    symbol.width = 400;
    symbol.height = 300;
    symbol.refX = 100;
    symbol.refY = 50;
    symbol.elements.resize(1);
    return symbol;
}

constexpr SymbolPosition kAt{.at = {1000, 2000}, .angle = 0}; // pixels (90, 195) to (130, 225)
constexpr SymbolPosition kTurned{.at = {1000, 2000},
                                 .angle = qmath::kPi / 2}; // pixels (95, 170) to (125, 210)

bool Hit(const SymbolPosition& position, double factor, Point screen) {
    return ObjIdentByPt(Box(), position, factor, ScaledTransformation(10), screen);
}

bool Hit(const SymbolPosition& position, double factor, const Rect& screen) {
    return ObjIdentByRect(Box(), position, factor, ScaledTransformation(10), screen);
}

TEST(HitTest, ByPointOutlineIncluded) {
    EXPECT_TRUE(Hit(kAt, 0, Point{100, 200}));
    EXPECT_TRUE(Hit(kAt, 0, Point{90, 195}));
    EXPECT_TRUE(Hit(kAt, 0, Point{130, 225}));
    EXPECT_TRUE(Hit(kAt, 0, Point{110, 195}));
    EXPECT_FALSE(Hit(kAt, 0, Point{89, 195}));
    EXPECT_FALSE(Hit(kAt, 0, Point{131, 200}));
    EXPECT_FALSE(Hit(kAt, 0, Point{100, 226}));
}

TEST(HitTest, ByPointTurned) {
    EXPECT_TRUE(Hit(kTurned, 0, Point{95, 170}));
    EXPECT_TRUE(Hit(kTurned, 0, Point{125, 210}));
    EXPECT_FALSE(Hit(kTurned, 0, Point{94, 190}));
    EXPECT_FALSE(Hit(kTurned, 0, Point{110, 211}));
}

TEST(HitTest, ByRect) {
    EXPECT_TRUE(Hit(kAt, 0, Rect{130, 225, 200, 300})); // touches a corner
    EXPECT_FALSE(Hit(kAt, 0, Rect{131, 225, 200, 300}));
    EXPECT_TRUE(Hit(kAt, 0, Rect{100, 200, 101, 201})); // wholly inside
    EXPECT_TRUE(Hit(kAt, 0, Rect{0, 0, 500, 500}));     // wholly around
    EXPECT_FALSE(Hit(kAt, 0, Rect{0, 0, 50, 500}));
}

TEST(HitTest, ByRectBesideATurnedBox) {
    const SymbolPosition slanted{.at = {1000, 2000}, .angle = qmath::kPi / 4};
    const Rect corner{86, 171, 88, 173}; // within the bounds, outside the box
    EXPECT_FALSE(Hit(slanted, 0, corner));
    EXPECT_TRUE(Hit(slanted, 0, Rect{99, 199, 101, 201}));
}

TEST(HitTest, FollowsTheFactor) {
    EXPECT_FALSE(Hit(kAt, 1, Point{85, 200}));
    EXPECT_TRUE(Hit(kAt, 2, Point{85, 200})); // (80, 190) to (160, 250)
    EXPECT_FALSE(Hit(kAt, 0.5, Point{92, 200}));
    EXPECT_TRUE(Hit(kAt, 0, Point{92, 200}));
    EXPECT_TRUE(Hit(kAt, 2, Rect{155, 245, 156, 246}));
}

TEST(HitTest, ASymbolWithoutElementsIsNeverHit) {
    Symbol empty = Box();
    empty.elements.clear();
    EXPECT_FALSE(ObjIdentByPt(empty, kAt, 0, ScaledTransformation(10), {100, 200}));
    EXPECT_FALSE(ObjIdentByRect(empty, kAt, 0, ScaledTransformation(10), {0, 0, 500, 500}));
    // It is not even placed, so a position beyond the range is no error.
    EXPECT_FALSE(
        ObjIdentByPt(empty, {.at = {2147483647, 0}, .angle = 0}, 0, ScaledTransformation(1), {0, 0}));
}

TEST(HitTest, OutsideTheRangeIsError6) {
    const SymbolPosition far{.at = {2147483647, 0}, .angle = 0};
    EXPECT_EQ(support::ErrorNumberOf([&] {
                  ObjIdentByPt(Box(), far, 0, ScaledTransformation(10), {0, 0});
              }),
              6);
    EXPECT_EQ(support::ErrorNumberOf([&] { ObjIdentByRect(Box(), far, 0, ScaledTransformation(10), {}); }),
              6);
    const SymbolPosition high{.at = {1500000000, 0}, .angle = 0};
    EXPECT_EQ(support::ErrorNumberOf([&] {
                  ObjIdentByPt(Box(), high, 0, ScaledTransformation(0.5), {0, 0});
              }),
              6);
}

/// The box's corners in pixels by complex arithmetic and the system's rounding.
std::array<Point, 4> PlacedOutline(const Symbol& box, const SymbolPosition& position, double factor,
                                   double scale, Point origin) {
    std::array<Point, 4> outline;
    const std::array<Point, 4> own{{{0, 0}, {box.width, 0}, {box.width, box.height}, {0, box.height}}};
    for (std::size_t i = 0; i < own.size(); ++i) {
        const std::complex<double> offset(own[i].x - box.refX, own[i].y - box.refY);
        const std::complex<double> turned =
            (factor == 0 ? 1 : factor) * offset * std::polar(1.0, -position.angle);
        const double worldX = std::nearbyint(position.at.x + turned.real());
        const double worldY = std::nearbyint(position.at.y + turned.imag());
        outline[i] = {static_cast<std::int32_t>(std::nearbyint((worldX - origin.x) / scale)),
                      static_cast<std::int32_t>(std::nearbyint((worldY - origin.y) / scale))};
    }
    return outline;
}

TEST(HitTest, AgreesWithIndependentArithmetic) {
    std::mt19937 random(71);
    std::uniform_int_distribution<std::int32_t> world(-100000, 100000);
    std::uniform_int_distribution<std::int32_t> size(0, 4000);
    std::uniform_int_distribution<std::int32_t> near(-100, 100);
    std::uniform_int_distribution<int> degrees(-360, 360);
    std::uniform_real_distribution<double> scales(5, 80);
    const std::array<double, 4> factors{0, 1, 0.37, 2.5};
    int hits = 0;
    int edgeHits = 0;
    constexpr int kRounds = 20000;
    for (int i = 0; i < kRounds; ++i) {
        Symbol box = Box();
        box.width = size(random);
        box.height = size(random);
        box.refX = size(random) / 2;
        box.refY = size(random) / 2;
        const SymbolPosition position{.at = {world(random), world(random)},
                                      .angle = qmath::DegToRad(degrees(random))};
        const double factor = factors[static_cast<std::size_t>(i) % factors.size()];
        const double scale = scales(random);
        const Point origin{world(random), world(random)};
        const qsymbol::PlainTransformation transformation = ScaledTransformation(scale, origin);
        const std::array<Point, 4> outline = PlacedOutline(box, position, factor, scale, origin);

        // Half of the probes lie exactly on a corner or on the middle of a side, where that is a whole pixel.
        Point probe{outline[0].x + near(random), outline[0].y + near(random)};
        const Point a = outline[static_cast<std::size_t>(i / 2) % 4];
        const Point b = outline[static_cast<std::size_t>(i / 2 + 1) % 4];
        if (i % 2 == 0)
            probe =
                (a.x + b.x) % 2 == 0 && (a.y + b.y) % 2 == 0 ? Point{(a.x + b.x) / 2, (a.y + b.y) / 2} : a;
        const bool expected = support::ReferenceContains(outline, probe);
        ASSERT_EQ(ObjIdentByPt(box, position, factor, transformation, probe), expected) << i;
        hits += expected;
        edgeHits += i % 2 == 0 && expected;

        const Rect rect{probe.x, probe.y, probe.x + std::abs(near(random)) / 4,
                        probe.y + std::abs(near(random)) / 4};
        ASSERT_EQ(ObjIdentByRect(box, position, factor, transformation, rect),
                  support::ReferenceMeets(outline, rect))
            << i;
    }
    EXPECT_EQ(edgeHits, kRounds / 2);
    EXPECT_GT(hits - edgeHits, kRounds / 20);
    EXPECT_LT(hits - edgeHits, kRounds / 2 - kRounds / 20);
}

} // namespace
