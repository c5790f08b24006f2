#include "qmath/transform.h"

#include "support/error_number_of.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace {

using qmath::Point;
using qmath::Transform;
using support::ErrorNumberOf;

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

Transform Make(double scale, std::int32_t offsetX = 0, std::int32_t offsetY = 0) {
    Transform transform;
    transform.SetScale(scale);
    transform.SetOffsetX(offsetX);
    transform.SetOffsetY(offsetY);
    return transform;
}

TEST(Transform, StartsAsTheIdentity) {
    const Transform transform;
    EXPECT_EQ(transform.Scale(), 1);
    EXPECT_EQ(transform.OffsetX(), 0);
    EXPECT_EQ(transform.OffsetY(), 0);
    EXPECT_EQ(transform.WorldToScreen({kLeast, kMost}), (Point{kLeast, kMost}));
    EXPECT_EQ(transform.ScreenToWorld({kLeast, kMost}), (Point{kLeast, kMost}));
}

TEST(Transform, WorldLessOffsetThroughScale) {
    const Transform transform = Make(10, 100, -50);
    EXPECT_EQ(transform.OffsetX(), 100);
    EXPECT_EQ(transform.OffsetY(), -50);
    EXPECT_EQ(transform.WorldToScreen({1100, 150}), (Point{100, 20}));
    EXPECT_EQ(transform.WorldToScreen({115, -35}), (Point{2, 2})); // 1.5 goes to the even 2
    EXPECT_EQ(transform.WorldToScreen({125, -25}), (Point{2, 2})); // 2.5 likewise
    EXPECT_EQ(transform.ScreenToWorld({100, 20}), (Point{1100, 150}));
}

TEST(Transform, ScaleMustBePositiveAndFinite) {
    Transform transform = Make(7);
    for (const double scale :
         {0.0, -1.0, std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(ErrorNumberOf([&] { transform.SetScale(scale); }), 5) << scale;
        EXPECT_EQ(transform.Scale(), 7);
    }
}

TEST(Transform, DifferencesBeyond32BitsAreExact) {
    const Transform transform = Make(4, kLeast, kMost);
    EXPECT_EQ(transform.WorldToScreen({kMost, kLeast}), (Point{1073741824, -1073741824}));
}

TEST(Transform, ResultsOutsideTheRangeAreError6) {
    EXPECT_EQ(ErrorNumberOf([] { Make(1, -1).WorldToScreen({kMost, 0}); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Make(1, 0, 1).WorldToScreen({0, kLeast}); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Make(2).ScreenToWorld({1073741824, 0}); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Make(0.5).LengthToScreen(1073741824); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Make(1e-300).FontSizeToScreen(100, 10); }), 6);
    std::array<Point, 2> points{{{0, 0}, {0, kMost}}};
    EXPECT_EQ(ErrorNumberOf([&] { Make(0.5).WorldToScreen(points); }), 6);
}

TEST(Transform, Lengths) {
    EXPECT_EQ(Make(10, 1000, 1000).LengthToScreen(250), 25);
    EXPECT_EQ(Make(10).LengthToScreen(-254), -25);
    EXPECT_EQ(Make(3).LengthToScreen(1), 0);
}

TEST(Transform, FontSizes) {
    // 12 points are 12 · 25.4 / 72 = 4.2333 mm, at 100 units to a millimetre 423.33 units.
    EXPECT_EQ(Make(1).FontSizeToScreen(100, 12), 423);
    EXPECT_EQ(Make(10).FontSizeToScreen(100, 12), 42);
    EXPECT_EQ(Make(10).FontSizeToScreen(200, 12), 85);
    EXPECT_EQ(Make(10000).FontSizeToScreen(100, 12), 1);
    EXPECT_EQ(Make(1).FontSizeToScreen(100, 0), 1);
    EXPECT_EQ(Make(1).FontSizeToScreen(100, -12), 1);
}

TEST(Transform, ManyPointsAsOneByOneAndBack) {
    std::mt19937 random(9);
    std::uniform_int_distribution<std::int32_t> coordinate(-100000000, 100000000);
    const Transform transform = Make(12.5, 777, -888);
    std::array<Point, 1000> points;
    for (Point& point : points)
        point = {coordinate(random), coordinate(random)};
    std::array<Point, 1000> screen = points;
    transform.WorldToScreen(screen);
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_EQ(screen[i], transform.WorldToScreen(points[i]));
        const Point back = transform.ScreenToWorld(screen[i]);
        EXPECT_LE(std::abs(back.x - points[i].x), 7);
        EXPECT_LE(std::abs(back.y - points[i].y), 7);
    }
}

} // namespace
