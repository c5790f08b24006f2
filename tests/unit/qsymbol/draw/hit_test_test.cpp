#include "qsymbol/draw/hit_test.h"

#include "qmath/math_util.h"
#include "support/outline_reference.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <complex>
#include <random>

namespace {

using qmath::Point;
using qmath::Rect;
using qsymbol::ObjIdentByPt;
using qsymbol::ObjIdentByRect;
using qsymbol::Symbol;
using qsymbol::SymbolPosition;
using support::ScaledTransformation;

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
        Symbol box;
        box.elements.resize(1);
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
