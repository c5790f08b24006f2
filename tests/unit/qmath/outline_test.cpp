#include "qmath/outline.h"

#include "qmath/polygon.h"
#include "support/outline_reference.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>
#include <vector>

namespace {

using namespace qmath;
using Points = std::vector<Point>;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

const Points kTriangle{{0, 0}, {10, 0}, {0, 10}};
const Points kConcave{{0, 0}, {20, 0}, {20, 20}, {10, 10}, {0, 20}};

TEST(Outline, InsideOutsideAndOn) {
    EXPECT_TRUE(OutlineContains(kTriangle, {2, 2}));
    EXPECT_TRUE(OutlineContains(kTriangle, {5, 5}));   // on the slope
    EXPECT_FALSE(OutlineContains(kTriangle, {6, 5}));  // just off it
    EXPECT_TRUE(OutlineContains(kTriangle, {10, 0}));  // a vertex
    EXPECT_TRUE(OutlineContains(kTriangle, {0, 7}));   // on a side
    EXPECT_FALSE(OutlineContains(kTriangle, {-1, 0})); // level with a side
    EXPECT_FALSE(OutlineContains(kTriangle, {11, 0}));
    EXPECT_TRUE(OutlineContains(kConcave, {10, 10}));
    EXPECT_FALSE(OutlineContains(kConcave, {10, 11}));
    EXPECT_TRUE(OutlineContains(kConcave, {3, 15}));
}

TEST(Outline, SelfCrossingFollowsTheEvenOddRule) {
    const Points twiceRound{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_FALSE(OutlineContains(twiceRound, {5, 5}));
    EXPECT_TRUE(OutlineContains(twiceRound, {10, 5}));
}

TEST(Outline, FewerThanThreeVertices) {
    EXPECT_FALSE(OutlineContains({}, {0, 0}));
    EXPECT_FALSE(OutlineMeets({}, {-5, -5, 5, 5}));
    const Points point{{3, 4}};
    EXPECT_TRUE(OutlineContains(point, {3, 4}));
    EXPECT_FALSE(OutlineContains(point, {2, 4}));
    EXPECT_TRUE(OutlineMeets(point, {3, 4, 9, 9}));
    EXPECT_FALSE(OutlineMeets(point, {4, 4, 9, 9}));
    const Points segment{{0, 0}, {10, 5}};
    EXPECT_TRUE(OutlineContains(segment, {4, 2}));
    EXPECT_FALSE(OutlineContains(segment, {5, 2}));
    EXPECT_FALSE(OutlineContains(segment, {12, 6}));
    EXPECT_TRUE(OutlineMeets(segment, {4, 0, 5, 9}));
    EXPECT_FALSE(OutlineMeets(segment, {6, 0, 9, 2}));
}

TEST(Outline, RectangleSharesAPoint) {
    EXPECT_TRUE(OutlineMeets(kTriangle, {-5, -5, 0, 0}));     // touches a vertex
    EXPECT_TRUE(OutlineMeets(kTriangle, {5, 5, 9, 9}));       // its corner touches the slope
    EXPECT_FALSE(OutlineMeets(kTriangle, {6, 5, 9, 9}));      // boxes overlap, shapes do not
    EXPECT_TRUE(OutlineMeets(kTriangle, {1, 1, 2, 2}));       // wholly inside
    EXPECT_TRUE(OutlineMeets(kTriangle, {-50, -50, 50, 50})); // wholly around
    EXPECT_TRUE(OutlineMeets(kTriangle, {-5, 4, 50, 5}));     // a band through it, no vertex in it
    EXPECT_FALSE(OutlineMeets(kConcave, {9, 15, 11, 19}));    // in the notch
    EXPECT_TRUE(OutlineMeets(kTriangle, {2, 2, 2, 2}));       // a point
    EXPECT_FALSE(OutlineMeets(kTriangle, {11, -3, 11, 30}));
}

TEST(Outline, RectangleWithExchangedEdges) {
    EXPECT_TRUE(OutlineMeets(kTriangle, {2, 2, 1, 1}));
    EXPECT_TRUE(OutlineMeets(kTriangle, {50, -50, -50, 50}));
    EXPECT_FALSE(OutlineMeets(kTriangle, {9, 9, 6, 5}));
}

TEST(Outline, CornersOfTheRange) {
    const Points all{{kLowest, kLowest}, {kHighest, kLowest}, {kHighest, kHighest}, {kLowest, kHighest}};
    for (const std::int32_t x : {kLowest, 0, kHighest})
        for (const std::int32_t y : {kLowest, -1, kHighest})
            EXPECT_TRUE(OutlineContains(all, {x, y}));
    EXPECT_TRUE(OutlineMeets(all, {5, 5, 6, 6}));
    const Points half{{kLowest, kLowest}, {kHighest, kHighest}, {kLowest, kHighest}};
    EXPECT_TRUE(OutlineContains(half, {0, 0}));
    EXPECT_TRUE(OutlineContains(half, {-1, 0}));
    EXPECT_FALSE(OutlineContains(half, {1, 0}));
    EXPECT_TRUE(OutlineMeets(half, {1, 0, 2, 1}));  // meets the diagonal in (1, 1)
    EXPECT_FALSE(OutlineMeets(half, {2, 0, 3, 1})); // one unit beside it
    EXPECT_FALSE(OutlineMeets(half, {kHighest, kLowest, kHighest, kHighest - 1}));
    EXPECT_TRUE(OutlineMeets(half, {kHighest, kLowest, kHighest, kHighest}));
}

/// Random polygons and probes over a few coordinates, so that all ways of touching happen often.
void CompareWithReference(const std::vector<std::int32_t>& coordinates, std::uint32_t seed, int rounds) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::size_t> pick(0, coordinates.size() - 1);
    std::uniform_int_distribution<std::size_t> count(1, 7);
    const auto point = [&] { return Point{coordinates[pick(random)], coordinates[pick(random)]}; };
    int inside = 0;
    int met = 0;
    for (int i = 0; i < rounds; ++i) {
        Points outline(count(random));
        for (Point& vertex : outline)
            vertex = point();
        const Point probe = point();
        const Point a = point();
        const Point b = point();
        const Rect rect{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
        const bool contains = support::ReferenceContains(outline, probe);
        const bool meets = support::ReferenceMeets(outline, rect);
        ASSERT_EQ(OutlineContains(outline, probe), contains) << "round " << i;
        ASSERT_EQ(OutlineMeets(outline, rect), meets) << "round " << i;
        inside += contains;
        met += meets;
    }
    EXPECT_GT(inside, rounds / 20);
    EXPECT_LT(inside, rounds - rounds / 20);
    EXPECT_GT(met, rounds / 20);
    EXPECT_LT(met, rounds - rounds / 20);
}

TEST(Outline, AgreesWithTheReferenceOnASmallGrid) {
    std::vector<std::int32_t> coordinates;
    for (std::int32_t i = -6; i <= 6; ++i)
        coordinates.push_back(i);
    CompareWithReference(coordinates, 21, 40000);
}

TEST(Outline, AgreesWithTheReferenceAtTheEndsOfTheRange) {
    CompareWithReference({kLowest, kLowest + 1, kLowest / 2, -1, 0, 1, kHighest / 2, kHighest - 1, kHighest},
                         22, 40000);
}

TEST(Outline, AgreesWithTheReferenceAllOverTheRange) {
    std::mt19937 random(23);
    std::uniform_int_distribution<std::int32_t> any(kLowest, kHighest);
    std::vector<std::int32_t> coordinates(500);
    for (std::int32_t& coordinate : coordinates)
        coordinate = any(random);
    CompareWithReference(coordinates, 24, 40000);
}

TEST(Polygon, KeepsItsVertices) {
    Polygon polygon(kTriangle);
    EXPECT_TRUE(polygon.PtInside({5, 5}));
    EXPECT_TRUE(polygon.Meets({1, 1, 2, 2}));
    polygon = Polygon({{100, 100}, {110, 100}, {100, 110}});
    EXPECT_FALSE(polygon.PtInside({5, 5}));
    EXPECT_FALSE(polygon.Meets({1, 1, 2, 2}));
    EXPECT_FALSE(Polygon().PtInside({0, 0}));
}

} // namespace
