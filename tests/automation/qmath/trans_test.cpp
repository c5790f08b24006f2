#include "support/automation_test.h"
#include "support/shapes.h"

#include <cmath>
#include <limits>

namespace {

using support::NewTrans;
using support::Outcome;
using support::Ref;
using support::RunTimeError;

constexpr LONG kMost = std::numeric_limits<LONG>::max();
constexpr LONG kLeast = std::numeric_limits<LONG>::min();

class Trans : public support::AutomationTest {
protected:
    static POINT ToScreen(const Ref<_CTrans>& trans, LONG x, LONG y) {
        EXPECT_OK(trans->WorldToScreen(&x, &y));
        return {x, y};
    }
    static LONG LengthToScreen(const Ref<_CTrans>& trans, LONG length) {
        EXPECT_OK(trans->LengthToScreen(&length));
        return length;
    }
};

TEST_F(Trans, StartsAsTheIdentity) {
    const auto trans = support::Create<CTrans, _CTrans>();
    EXPECT_EQ(ToScreen(trans, 123, -456), (POINT{123, -456}));
    double scale = 0;
    LONG x = 1;
    LONG y = 1;
    EXPECT_OK(trans->get_Scale(&scale));
    EXPECT_OK(trans->get_OffsetX(&x));
    EXPECT_OK(trans->get_OffsetY(&y));
    EXPECT_EQ(scale, 1);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
}

TEST_F(Trans, RoundsHalvesToTheEvenPixel) {
    const Ref<_CTrans> trans = NewTrans(2);
    EXPECT_EQ(ToScreen(trans, 1, 3), (POINT{0, 2}));
    EXPECT_EQ(ToScreen(trans, 5, 7), (POINT{2, 4}));
    EXPECT_EQ(ToScreen(trans, -1, -3), (POINT{0, -2}));
    EXPECT_EQ(LengthToScreen(trans, 5), 2);
    EXPECT_EQ(LengthToScreen(trans, 7), 4);
    EXPECT_EQ(LengthToScreen(trans, -5), -2);
}

TEST_F(Trans, BothAxesRunTheSameWay) {
    EXPECT_EQ(ToScreen(NewTrans(10, 100, 200), 150, 260), (POINT{5, 6}));
    EXPECT_EQ(ToScreen(NewTrans(0.5, 100, 200), 150, 150), (POINT{100, -100}));
}

TEST_F(Trans, OffsetsDoNotTouchLengths) {
    EXPECT_EQ(LengthToScreen(NewTrans(10, 1000, 1000), 55), 6);
}

TEST_F(Trans, ConvertsAPointInPlace) {
    const Ref<_CTrans> trans = NewTrans(10, 100, 200);
    Ref<_CPt> pt = support::NewPt(150, 260);
    _CPt* const same = pt.Get();
    EXPECT_OK(trans->PtWorldToScreen(pt.InOut()));
    EXPECT_EQ(pt.Get(), same);
    EXPECT_EQ(support::At(pt.Get()), (POINT{5, 6}));
    EXPECT_OK(trans->PtScreenToWorld(pt.InOut()));
    EXPECT_EQ(support::At(pt.Get()), (POINT{150, 260}));
}

TEST_F(Trans, TheInverseRoundsAsWell) {
    const Ref<_CTrans> trans = NewTrans(0.5, 3, 3);
    Ref<_CPt> pt = support::NewPt(1, -1); // 3.5 and 2.5
    EXPECT_OK(trans->PtScreenToWorld(pt.InOut()));
    EXPECT_EQ(support::At(pt.Get()), (POINT{4, 2}));
}

TEST_F(Trans, FontSizesArePointsOnTheScaledSurface) {
    const auto height = [](double scale, double factor, SHORT size) {
        LONG result = 0;
        EXPECT_OK(NewTrans(scale)->FontSizeToScreen(factor, size, &result));
        return result;
    };
    EXPECT_EQ(height(1, 100, 72), 2540) << "72 points are 25.4 mm";
    EXPECT_EQ(height(10, 100, 72), 254);
    EXPECT_EQ(height(1, 100, 6), 212) << "211.67";
    EXPECT_EQ(height(1, 1, 72), 25) << "25.4";
    EXPECT_EQ(height(1000000, 100, 6), 1) << "at least one pixel";
}

TEST_F(Trans, RefusesAScaleThatIsNoScale) {
    const Ref<_CTrans> trans = NewTrans(4);
    for (const double scale : {0.0, -1.0, HUGE_VAL, -HUGE_VAL, std::nan("")})
        EXPECT_EQ(Outcome(trans->SetScale(scale)), RunTimeError(5, L"QMath")) << scale;
    EXPECT_EQ(LengthToScreen(trans, 8), 2) << "the old scale stays";
}

TEST_F(Trans, OverflowIsAnErrorAndLeavesThePointAlone) {
    const Ref<_CTrans> enlarging = NewTrans(0.5);
    LONG x = 7;
    LONG y = 1073741824;
    EXPECT_EQ(Outcome(enlarging->WorldToScreen(&x, &y)), RunTimeError(6, L"QMath"));
    EXPECT_EQ(x, 7);
    EXPECT_EQ(y, 1073741824);
    y = -1073741824;
    EXPECT_OK(enlarging->WorldToScreen(&x, &y));
    EXPECT_EQ(y, kLeast) << "the last one that fits";
    LONG length = kMost;
    EXPECT_EQ(Outcome(enlarging->LengthToScreen(&length)), RunTimeError(6, L"QMath"));
    EXPECT_EQ(length, kMost);
}

TEST_F(Trans, AllCoordinatesAreAllowed) {
    const Ref<_CTrans> trans = NewTrans();
    EXPECT_EQ(ToScreen(trans, kMost, kLeast), (POINT{kMost, kLeast}));
    const Ref<_CTrans> moved = NewTrans(1, 1, 0);
    LONG x = kLeast;
    LONG y = 0;
    EXPECT_EQ(Outcome(moved->WorldToScreen(&x, &y)), RunTimeError(6, L"QMath"));
    // 4294967295 / 2 lies exactly between the largest number and the first that does not fit, which is even.
    x = kMost;
    EXPECT_EQ(Outcome(NewTrans(2, kLeast, 0)->WorldToScreen(&x, &y)), RunTimeError(6, L"QMath"));
    EXPECT_EQ(ToScreen(NewTrans(2, kLeast, 0), kMost - 1, 0).x, kMost);
}

TEST_F(Trans, FontSizesOverflowToo) {
    LONG height = 5;
    EXPECT_EQ(Outcome(NewTrans(1e-9)->FontSizeToScreen(100, 100, &height)), RunTimeError(6, L"QMath"));
    EXPECT_EQ(height, 0);
}

TEST_F(Trans, MissingPlacesAndObjects) {
    const Ref<_CTrans> trans = NewTrans();
    LONG x = 0;
    EXPECT_EQ(Outcome(trans->WorldToScreen(&x, nullptr)).status, E_POINTER);
    EXPECT_EQ(Outcome(trans->LengthToScreen(nullptr)).status, E_POINTER);
    EXPECT_EQ(Outcome(trans->PtWorldToScreen(nullptr)).status, E_POINTER);
    _CPt* nothing = nullptr;
    EXPECT_EQ(Outcome(trans->PtWorldToScreen(&nothing)), RunTimeError(91, L"QMath"));
    EXPECT_EQ(Outcome(trans->PtScreenToWorld(&nothing)), RunTimeError(91, L"QMath"));
}

} // namespace
