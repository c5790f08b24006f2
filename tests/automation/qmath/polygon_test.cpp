#include "support/automation_test.h"
#include "support/shapes.h"

#include <limits>

namespace {

using support::NewPtList;
using support::Outcome;
using support::Ref;

class Polygon : public support::AutomationTest {
protected:
    Ref<_CPolygon> polygon = support::Create<CPolygon, _CPolygon>();

    void SetPoints(const std::vector<POINT>& points) const {
        EXPECT_OK(polygon->SetPoints(NewPtList(points).Get()));
    }
    bool Inside(LONG x, LONG y) const {
        VARIANT_BOOL result = 7;
        EXPECT_OK(polygon->PtInside(x, y, &result));
        EXPECT_TRUE(result == VARIANT_TRUE || result == VARIANT_FALSE);
        return result != VARIANT_FALSE;
    }
    bool Touches(LONG left, LONG top, LONG right, LONG bottom) const {
        VARIANT_BOOL result = 7;
        EXPECT_OK(polygon->RectTouches(left, top, right, bottom, &result));
        EXPECT_TRUE(result == VARIANT_TRUE || result == VARIANT_FALSE);
        return result != VARIANT_FALSE;
    }
};

TEST_F(Polygon, TheOutlineBelongsToIt) {
    SetPoints({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    EXPECT_TRUE(Inside(5, 5));
    EXPECT_TRUE(Inside(0, 0));
    EXPECT_TRUE(Inside(10, 10));
    EXPECT_TRUE(Inside(10, 3));
    EXPECT_TRUE(Inside(4, 10));
    EXPECT_FALSE(Inside(11, 5));
    EXPECT_FALSE(Inside(-1, 0));
    EXPECT_FALSE(Inside(10, 11));
}

TEST_F(Polygon, SlantedEdgesAreExact) {
    SetPoints({{0, 0}, {30, 10}, {0, 20}});
    EXPECT_TRUE(Inside(3, 1)) << "on the edge";
    EXPECT_FALSE(Inside(4, 1));
    EXPECT_TRUE(Inside(30, 10));
    EXPECT_FALSE(Inside(31, 10));
    EXPECT_TRUE(Inside(27, 11));
    EXPECT_FALSE(Inside(28, 11));
}

TEST_F(Polygon, ANotchIsOutside) {
    SetPoints({{0, 0}, {10, 0}, {10, 10}, {5, 4}, {0, 10}});
    EXPECT_FALSE(Inside(5, 8));
    EXPECT_TRUE(Inside(5, 4));
    EXPECT_TRUE(Inside(1, 8));
    EXPECT_TRUE(Inside(9, 8));
}

TEST_F(Polygon, TheDirectionOfTheVerticesDoesNotMatter) {
    SetPoints({{0, 10}, {10, 10}, {10, 0}, {0, 0}});
    EXPECT_TRUE(Inside(5, 5));
    EXPECT_TRUE(Inside(0, 5));
    EXPECT_FALSE(Inside(5, 11));
}

TEST_F(Polygon, ARectangleTouchesWithOneCommonPoint) {
    SetPoints({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    EXPECT_TRUE(Touches(2, 2, 3, 3)) << "inside the polygon";
    EXPECT_TRUE(Touches(-5, -5, 15, 15)) << "round the polygon";
    EXPECT_TRUE(Touches(-5, 4, 15, 6)) << "across";
    EXPECT_TRUE(Touches(10, 10, 20, 20)) << "corner on corner";
    EXPECT_TRUE(Touches(10, 2, 12, 3)) << "edge on edge";
    EXPECT_FALSE(Touches(11, 0, 20, 10));
    EXPECT_FALSE(Touches(0, 11, 10, 12));
}

TEST_F(Polygon, ARectangleBesideASlantedEdgeMisses) {
    SetPoints({{0, 0}, {100, 0}, {0, 100}});
    EXPECT_FALSE(Touches(51, 51, 90, 90)) << "inside the bounds, outside the triangle";
    EXPECT_TRUE(Touches(50, 50, 90, 90));
}

TEST_F(Polygon, ExtremeCoordinates) {
    constexpr LONG kHighest = std::numeric_limits<LONG>::max();
    constexpr LONG kLowest = std::numeric_limits<LONG>::min();
    SetPoints({{kLowest, kLowest}, {kHighest, kLowest}, {kHighest, kHighest}, {kLowest, kHighest}});
    EXPECT_TRUE(Inside(0, 0));
    EXPECT_TRUE(Inside(kHighest, kLowest));
    EXPECT_TRUE(Touches(kLowest, kLowest, kLowest, kLowest));
    SetPoints({{kLowest, kLowest}, {kHighest, kHighest}, {kLowest, kHighest}});
    EXPECT_TRUE(Inside(12345, 12345));
    EXPECT_FALSE(Inside(12346, 12345));
}

TEST_F(Polygon, WithoutVerticesHoldsNothing) {
    EXPECT_FALSE(Inside(0, 0));
    EXPECT_FALSE(Touches(-1, -1, 1, 1));
    SetPoints({});
    EXPECT_FALSE(Inside(0, 0));
    SetPoints({{3, 4}});
    EXPECT_TRUE(Inside(3, 4)) << "a single point is its own outline";
    EXPECT_FALSE(Inside(3, 5));
}

TEST_F(Polygon, TakesTheVerticesAsTheyAreNow) {
    const Ref<_CPtList> list = NewPtList({{0, 0}, {10, 0}, {10, 10}});
    EXPECT_OK(polygon->SetPoints(list.Get()));
    EXPECT_OK(list->Clear());
    EXPECT_TRUE(Inside(9, 5));
}

TEST_F(Polygon, NeedsAList) {
    EXPECT_EQ(Outcome(polygon->SetPoints(nullptr)), support::RunTimeError(91, L"QMath"));
    EXPECT_EQ(Outcome(polygon->PtInside(0, 0, nullptr)).status, E_POINTER);
}

} // namespace
