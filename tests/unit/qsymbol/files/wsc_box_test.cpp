#include "qsymbol/files/wsc_box.h"

#include "support/caught.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <numbers>

namespace {

using qmath::Point;
using qsymbol::WscBox;

using Sector = std::array<Point, WscBox::kSectorPoints>;
using Ellipse = std::array<Point, WscBox::kEllipsePoints>;

Ellipse EllipseIn(const WscBox& box, std::int32_t height) {
    Ellipse outline{};
    box.Ellipse(outline, height);
    return outline;
}

Sector SectorOf(const WscBox& box, qsymbol::WscPlace from, qsymbol::WscPlace to, std::int32_t height = 0) {
    Sector outline{};
    box.Sector(from, to, outline, height);
    return outline;
}

/// Twice the area, positive when the outline runs counter-clockwise with y upwards.
double TwiceArea(const Sector& outline) {
    double sum = 0;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Point a = outline[i];
        const Point b = outline[(i + 1) % outline.size()];
        sum -= static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y; // y grows downwards here
    }
    return sum;
}

TEST(WscBox, EveryPointOfAnEllipseLiesOnIt) {
    const WscBox box{{-30000, 7000}, {90000, 47000}};
    const Ellipse outline = EllipseIn(box, 50000);
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const double angle = static_cast<double>(i) * 2 * std::numbers::pi / 20;
        EXPECT_NEAR(outline[i].x, 30000 + 60000 * std::cos(angle), 0.501) << i;
        EXPECT_NEAR(outline[i].y, 50000 - (27000 + 20000 * std::sin(angle)), 0.501) << i;
    }
}

TEST(WscBox, FirstAndLastPointOfAnEllipseCoincide) {
    // With a centre between two units a sine that is not quite 0 would round the other way.
    for (double side = 100; side < 500000000; side *= 1.37) {
        const double width = std::floor(side) + 0.5;
        const Ellipse outline = EllipseIn({{0, 0}, {4 * width, 2 * std::floor(side) + 1}}, 7);
        EXPECT_EQ(outline.front(), outline.back()) << side;
        EXPECT_EQ(outline[0].y, outline[10].y) << side;
        EXPECT_EQ(outline[5].x, outline[15].x) << side;
    }
}

TEST(WscBox, ASectorRunsCounterClockwiseFromItsFirstRay) {
    const WscBox box{{-100, -100}, {100, 100}};
    const Sector quarter = SectorOf(box, {5, 0}, {0, 5});
    EXPECT_EQ(quarter.front(), (Point{100, 0}));
    EXPECT_EQ(quarter[20], (Point{0, -100}));
    EXPECT_NEAR(TwiceArea(quarter), std::numbers::pi / 2 * 10000, 200);
    const Sector rest = SectorOf(box, {0, 5}, {5, 0});
    EXPECT_EQ(rest.front(), (Point{0, -100}));
    EXPECT_EQ(rest[20], (Point{100, 0}));
    EXPECT_NEAR(TwiceArea(rest), 3 * std::numbers::pi / 2 * 10000, 700);
}

TEST(WscBox, EqualRaysGiveTheWholeEllipse) {
    const Sector whole = SectorOf({{-100, -50}, {100, 50}}, {20, 0}, {7, 0});
    EXPECT_EQ(whole.front(), (Point{100, 0}));
    EXPECT_EQ(whole[10], (Point{-100, 0}));
    EXPECT_EQ(whole[20], (Point{100, 0}));
    EXPECT_EQ(whole[21], (Point{0, 0}));
}

TEST(WscBox, RaysMeetTheEllipseWhereTheyPointTo) {
    const WscBox box{{0, 0}, {4000, 1000}};
    const Sector sector = SectorOf(box, {3000, 1500}, {1500, 1500}, 1000);
    // The ray to (3000, 1500) climbs one for one: it leaves the ellipse where x - 2000 = y - 500.
    const double offset = 1 / std::hypot(1 / 2000.0, 1 / 500.0);
    EXPECT_NEAR(sector.front().x, 2000 + offset, 0.51);
    EXPECT_NEAR(sector.front().y, 1000 - (500 + offset), 0.51);
    EXPECT_EQ(sector.back(), (Point{2000, 500}));
    for (std::size_t i = 0; i < 21; ++i)
        EXPECT_NEAR(std::hypot((sector[i].x - 2000) / 2000.0, (sector[i].y - 500) / 500.0), 1.0, 0.002) << i;
}

TEST(WscBox, ABoxWithoutWidthOrHeight) {
    const Sector line = SectorOf({{10, 0}, {10, 100}}, {20, 50}, {10, 200});
    for (const Point point : line)
        EXPECT_EQ(point.x, 10);
    const Sector dot = SectorOf({{3, 4}, {3, 4}}, {3, 4}, {3, 4}, 10);
    for (const Point point : dot)
        EXPECT_EQ(point, (Point{3, 6}));
}

TEST(WscBox, OutsideTheRange) {
    Ellipse outline{};
    const WscBox wide{{0, 0}, {5e9, 10}};
    EXPECT_EQ(support::CaughtFrom([&] { wide.Ellipse(outline, 0); }),
              support::Expected(base::RunTimeError::Overflow));
    EXPECT_EQ(support::CaughtFrom([&] {
                  SectorOf(wide, {1, 1}, {2, 2});
              }),
              support::Expected(base::RunTimeError::Overflow));
}

} // namespace
