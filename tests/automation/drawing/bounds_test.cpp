#include "drawing/placed_symbol.h"

#include <algorithm>

namespace {

using namespace drawing;
using support::Dispatch;
using support::Value;

class Bounds : public PlacedSymbolTest {
protected:
    static RECT Read(_CRect* rect) {
        RECT values{};
        EXPECT_OK(rect->get_Left(&values.left));
        EXPECT_OK(rect->get_Top(&values.top));
        EXPECT_OK(rect->get_Right(&values.right));
        EXPECT_OK(rect->get_Bottom(&values.bottom));
        return values;
    }
    static RECT BoundsOf(_CSymbol* symbol, LONG x, LONG y, double angle) {
        Ref<_CRect> rect;
        EXPECT_OK(symbol->GetBoundingRect(x, y, angle, rect.Put()));
        return rect ? Read(rect.Get()) : RECT{};
    }
    static void ExpectRect(const RECT& rect, const RECT& expected) {
        EXPECT_TRUE(EqualRect(&rect, &expected))
            << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom << ", not "
            << expected.left << ' ' << expected.top << ' ' << expected.right << ' ' << expected.bottom;
    }

    Ref<_CSymbol> symbol = support::NewSymbol(30, 20, 100, 80, {{.type = symPoly, .points = {{0, 0}}}});
};

TEST_F(Bounds, UnturnedAndUnscaled) {
    SetFactors(0, 0);
    ExpectRect(BoundsOf(symbol.Get(), 1000, 2000, 0), {970, 1980, 1070, 2060});
}

TEST_F(Bounds, FollowTheScreenFactorOfTheLastDrawingOfAnySymbol) {
    SetFactors(7, 2); // the printer's never counts
    ExpectRect(BoundsOf(symbol.Get(), 1000, 2000, 0), {940, 1960, 1140, 2120});
    support::Canvas canvas;
    const auto box = support::PictureBox::Create(canvas, L"PlanBox", L"Printer");
    EXPECT_OK(support::NewSymbol()->Draw(0, 0, 0, box.Get(), support::NewTrans().Get(), 7, 3, nullptr));
    ExpectRect(BoundsOf(symbol.Get(), 1000, 2000, 0), {910, 1940, 1210, 2180});
    EXPECT_OK(symbol->Draw2PBox(box.Get())); // draws with 1
    ExpectRect(BoundsOf(symbol.Get(), 1000, 2000, 0), {970, 1980, 1070, 2060});
    SetFactors(7, 0);
    ExpectRect(BoundsOf(symbol.Get(), 1000, 2000, 0), {970, 1980, 1070, 2060});
}

TEST_F(Bounds, NeedNoElements) {
    SetFactors(1, 1);
    ExpectRect(BoundsOf(support::NewSymbol().Get(), 5, 6, 1), {5, 6, 5, 6});
}

TEST_F(Bounds, AgreeWithTheCornersAtRandomPlaces) {
    for (int i = 0; i < 500; ++i) {
        const double factor = RandomFactor();
        const Place place = RandomPlace(factor);
        const LONG width = Random(0, 3000);
        const LONG height = Random(0, 3000);
        SetFactors(3, factor);
        const auto placed = support::NewSymbol();
        EXPECT_OK(placed->CreateNew(place.reference.x, place.reference.y, width, height, nullptr));
        const std::vector<POINT> corners = WorldBox(place, width, height);
        RECT expected{corners[0].x, corners[0].y, corners[0].x, corners[0].y};
        for (const POINT& corner : corners) {
            expected.left = std::min(expected.left, corner.x);
            expected.right = std::max(expected.right, corner.x);
            expected.top = std::min(expected.top, corner.y);
            expected.bottom = std::max(expected.bottom, corner.y);
        }
        ExpectRect(BoundsOf(placed.Get(), place.at.x, place.at.y, place.angle), expected);
    }
}

TEST_F(Bounds, ReplaceTheObjectThatWasThere) {
    SetFactors(1, 1);
    const auto old = support::Create<CRect, _CRect>();
    EXPECT_OK(old->put_Left(4711));
    Ref<_CRect> rect = old;
    EXPECT_OK(symbol->GetBoundingRect(0, 0, 0, rect.InOut()));
    EXPECT_FALSE(support::SameObject(rect.Get(), old.Get()));
    ExpectRect(Read(rect.Get()), {-30, -20, 70, 60});
    ExpectRect(Read(old.Get()), {4711, 0, 0, 0});
}

TEST_F(Bounds, GoIntoAScriptsVariable) {
    SetFactors(1, 1);
    for (Value variable : {Value(), Value::Nothing(), Value(support::Create<CRect, _CRect>())}) {
        EXPECT_OK(Dispatch(symbol).Call(L"GetBoundingRect", {10, 20, 0.0, Value::Variable(variable)}).status);
        const auto rect = variable.As<_CRect>();
        ASSERT_TRUE(rect);
        ExpectRect(Read(rect.Get()), {-20, 0, 80, 80});
    }
}

TEST_F(Bounds, OutsideTheRangeAreAnOverflow) {
    SetFactors(1, 1);
    const auto old = support::Create<CRect, _CRect>();
    Ref<_CRect> rect = old;
    const HRESULT status = symbol->GetBoundingRect(2147483647, 0, 0, rect.InOut());
    EXPECT_EQ(support::Outcome(status), support::RunTimeError(6));
    EXPECT_TRUE(support::SameObject(rect.Get(), old.Get()));
}

} // namespace
