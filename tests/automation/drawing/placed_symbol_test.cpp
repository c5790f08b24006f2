#include "drawing/drawing_fixture.h"

#include <algorithm>
#include <cmath>
#include <random>

/// Bounds, hits and snapping where they meet a client's own objects and variables, and the drawn picture.

namespace {

using namespace drawing;
using support::Dispatch;
using support::Value;

double DistanceToEdge(POINT a, POINT b, POINT p) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double along = ((p.x - a.x) * dx + (p.y - a.y) * dy) / (dx * dx + dy * dy);
    const double t = std::clamp(along, 0.0, 1.0);
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

double DistanceToOutline(const std::vector<POINT>& shape, POINT p) {
    double nearest = 1e9;
    for (std::size_t i = 0; i < shape.size(); ++i)
        nearest = std::min(nearest, DistanceToEdge(shape[i], shape[(i + 1) % shape.size()], p));
    return nearest;
}

class PlacedSymbol : public support::AutomationTest {
protected:
    PlacedSymbol() { EXPECT_OK(support::NewSymbol()->Draw(0, 0, 0, nullptr, nullptr, 1, 1, nullptr)); }

    static RECT Read(_CRect* rect) {
        RECT values{};
        EXPECT_OK(rect->get_Left(&values.left));
        EXPECT_OK(rect->get_Top(&values.top));
        EXPECT_OK(rect->get_Right(&values.right));
        EXPECT_OK(rect->get_Bottom(&values.bottom));
        return values;
    }
    static void ExpectRect(const RECT& rect, const RECT& expected) {
        EXPECT_TRUE(EqualRect(&rect, &expected))
            << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom << ", not "
            << expected.left << ' ' << expected.top << ' ' << expected.right << ' ' << expected.bottom;
    }

    /// A filled box of the symbol's own size.
    static Ref<_CSymbol> FilledBox(POINT reference, LONG width, LONG height) {
        return support::NewSymbol(reference.x, reference.y, width, height,
                                  {{.type = symPoly,
                                    .points = {{0, 0}, {width, 0}, {width, height}, {0, height}},
                                    .closed = true,
                                    .fillColor = kRed}});
    }
    LONG Random(LONG low, LONG high) { return std::uniform_int_distribution<LONG>(low, high)(random); }

    std::mt19937 random{20260519}; // the same places in every run
    Ref<_CSymbol> symbol = FilledBox({30, 20}, 100, 80);
    Ref<_CTrans> trans = support::NewTrans(10);
};

TEST_F(PlacedSymbol, NeedsATransformationAndARectangle) {
    VARIANT_BOOL found = VARIANT_FALSE;
    HRESULT status = symbol->ObjIdentByPt(0, 0, 0, nullptr, 1, 1, &found);
    EXPECT_EQ(support::Outcome(status), support::RunTimeError(91));
    status = symbol->ObjIdentByRect(0, 0, 0, trans.Get(), nullptr, &found);
    EXPECT_EQ(support::Outcome(status), support::RunTimeError(91));
    float x = 1;
    float y = 2;
    LONG world = 3;
    status = symbol->CatchPt(&x, &y, &world, &world, 0, 0, 0, nullptr, 5, &found);
    EXPECT_EQ(support::Outcome(status), support::RunTimeError(91));
    EXPECT_TRUE(x == 1 && y == 2 && world == 3);
}

TEST_F(PlacedSymbol, BoundsReplaceTheObjectThatWasThere) {
    const auto old = support::Create<CRect, _CRect>();
    EXPECT_OK(old->put_Left(4711));
    Ref<_CRect> rect = old;
    EXPECT_OK(symbol->GetBoundingRect(0, 0, 0, rect.InOut()));
    EXPECT_FALSE(support::SameObject(rect.Get(), old.Get()));
    ExpectRect(Read(rect.Get()), {-30, -20, 70, 60});
    ExpectRect(Read(old.Get()), {4711, 0, 0, 0});
}

TEST_F(PlacedSymbol, BoundsGoIntoAScriptsVariable) {
    for (Value variable : {Value(), Value::Nothing(), Value(support::Create<CRect, _CRect>())}) {
        EXPECT_OK(Dispatch(symbol).Call(L"GetBoundingRect", {10, 20, 0.0, Value::Variable(variable)}).status);
        const auto rect = variable.As<_CRect>();
        ASSERT_TRUE(rect);
        ExpectRect(Read(rect.Get()), {-20, 0, 80, 80});
    }
}

TEST_F(PlacedSymbol, BoundsOutsideTheRangeAreAnOverflow) {
    const auto old = support::Create<CRect, _CRect>();
    Ref<_CRect> rect = old;
    const HRESULT status = symbol->GetBoundingRect(2147483647, 0, 0, rect.InOut());
    EXPECT_EQ(support::Outcome(status), support::RunTimeError(6));
    EXPECT_TRUE(support::SameObject(rect.Get(), old.Get()));
}

TEST_F(PlacedSymbol, SnapsAndGivesBackIntoAScriptsVariables) {
    const Dispatch late(
        support::NewSymbol(0, 0, 1, 1, {{.type = symPoly, .points = {{0, 0}, {304, 0}, {300, 400}}}}));
    const auto call = [&](Value& x, Value& y, Value& worldX, Value& worldY) {
        return late.Call(L"CatchPt", {Value::Variable(x), Value::Variable(y), Value::Variable(worldX),
                                      Value::Variable(worldY), 1000, 2000, 0.0, trans, 5});
    };
    Value x = 128;
    Value y = 203.5;
    Value worldX;
    Value worldY;
    support::Answer answer = call(x, y, worldX, worldY);
    EXPECT_OK(answer.status);
    EXPECT_TRUE(answer.value.Bool());
    EXPECT_EQ(x.Single(), 130);
    EXPECT_EQ(y.Single(), 200);
    EXPECT_EQ(worldX.Long(), 1304);
    EXPECT_EQ(worldY.Long(), 2000);

    x = 500;
    y = 600;
    answer = call(x, y, worldX, worldY);
    EXPECT_OK(answer.status);
    EXPECT_FALSE(answer.value.Bool());
    EXPECT_EQ(x.Single(), 500) << "a missed cursor stays";
    EXPECT_EQ(worldX.Long(), 1304);
    EXPECT_EQ(worldY.Long(), 2000);
}

TEST_F(PlacedSymbol, HitsAgreeWithTheDrawnPicture) {
    support::Canvas canvas;
    const std::vector<std::uint32_t> blank = canvas.Pixels();
    int coloured = 0;
    int outside = 0;
    for (int i = 0; i < 60; ++i) {
        const Place place{{Random(-300, 300), Random(-300, 300)},
                          {Random(600, 1800), Random(600, 1800)},
                          static_cast<double>(Random(-1000, 1000)) / 100,
                          Random(0, 1) == 0 ? 1.0 : 0.5};
        const View view{10, 0, 0};
        const LONG width = Random(200, 1200);
        const LONG height = Random(200, 1200);
        canvas.Reset();
        symbol = FilledBox(place.reference, width, height);
        const auto surface = support::PictureBox::Create(canvas, L"GraphicBox");
        EXPECT_OK(symbol->Draw(place.at.x, place.at.y, place.angle, surface.Get(), trans.Get(), 1,
                               place.factor, nullptr));
        std::vector<POINT> box;
        for (const POINT corner : {POINT{0, 0}, {width, 0}, {width, height}, {0, height}})
            box.push_back(Pixel(view, World(place, corner)));
        const std::vector<std::uint32_t> pixels = canvas.Pixels();
        for (int n = 0; n < 200; ++n) {
            const POINT p{Random(0, canvas.Width() - 1), Random(0, canvas.Height() - 1)};
            const auto index = static_cast<std::size_t>(p.y * canvas.Width() + p.x);
            VARIANT_BOOL answer = 7;
            EXPECT_OK(
                symbol->ObjIdentByPt(place.at.x, place.at.y, place.angle, trans.Get(), p.x, p.y, &answer));
            const bool hit = answer != VARIANT_FALSE;
            if (pixels[index] != blank[index]) {
                ++coloured;
                EXPECT_TRUE(hit) << "a coloured pixel at " << p.x << ", " << p.y << " in picture " << i;
            } else if (DistanceToOutline(box, p) > 1.5) {
                ++outside;
                EXPECT_FALSE(hit) << "an outer pixel at " << p.x << ", " << p.y << " in picture " << i;
            }
        }
    }
    EXPECT_GT(coloured, 500);
    EXPECT_GT(outside, 500);
}

} // namespace
