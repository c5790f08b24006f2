#include "qsymbol/geometry/plain_transformation.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using qmath::Point;

/// Converts one point at a time, as an adapter without a batch of its own does.
class Shifting : public qsymbol::Transformation {
public:
    void WorldToScreen(Point& point) const override { point = {point.x + 1, point.y + 2}; }
    void ScreenToWorld(Point& point) const override { point = {point.x - 1, point.y - 2}; }
    std::int32_t LengthToScreen(std::int32_t length) const override { return length; }
    std::int32_t FontSizeToScreen(double, std::int16_t size) const override { return size; }
};

TEST(PlainTransformation, FollowsItsTransform) {
    qmath::Transform transform;
    transform.SetScale(10);
    transform.SetOffsetX(100);
    transform.SetOffsetY(200);
    const qsymbol::PlainTransformation plain(transform);
    Point point{1100, 300};
    plain.WorldToScreen(point);
    EXPECT_EQ(point, (Point{100, 10}));
    plain.ScreenToWorld(point);
    EXPECT_EQ(point, (Point{1100, 300}));
    std::array<Point, 2> points{{{100, 200}, {120, 240}}};
    plain.PointsToScreen(points);
    EXPECT_EQ(points, (std::array<Point, 2>{{{0, 0}, {2, 4}}}));
    EXPECT_EQ(plain.LengthToScreen(250), 25);
    EXPECT_EQ(plain.FontSizeToScreen(100, 12), 42);
}

TEST(Transformation, BatchConvertsOneByOneByDefault) {
    std::array<Point, 2> points{{{10, 20}, {30, 40}}};
    Shifting().PointsToScreen(points);
    EXPECT_EQ(points, (std::array<Point, 2>{{{11, 22}, {31, 42}}}));
}

} // namespace
