#include "drawing/placed_symbol.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

using namespace drawing;
using support::Dispatch;
using support::Value;

/// On which side of the line from a to b the point lies: the sign.
std::int64_t Side(POINT a, POINT b, POINT p) {
    return (std::int64_t{b.x} - a.x) * (std::int64_t{p.y} - a.y) -
           (std::int64_t{b.y} - a.y) * (std::int64_t{p.x} - a.x);
}

/// A convex shape contains a point that lies on one and the same side of all edges, or on one.
bool Contains(const std::vector<POINT>& shape, POINT p) {
    bool left = false;
    bool right = false;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const std::int64_t side = Side(shape[i], shape[(i + 1) % shape.size()], p);
        left |= side > 0;
        right |= side < 0;
    }
    return !(left && right);
}

/// Two convex shapes are apart when all of one lies strictly beyond an edge of the other.
bool IsBeyondAnEdge(const std::vector<POINT>& shape, const std::vector<POINT>& other) {
    const std::int64_t inward = Side(shape[0], shape[1], shape[2]) > 0 ? 1 : -1;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const POINT a = shape[i];
        const POINT b = shape[(i + 1) % shape.size()];
        if (std::all_of(other.begin(), other.end(), [&](POINT p) { return Side(a, b, p) * inward < 0; }))
            return true;
    }
    return false;
}

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

class Hits : public PlacedSymbolTest {
protected:
    /// A filled box of the symbol's own size.
    static Ref<_CSymbol> FilledBox(POINT reference, LONG width, LONG height) {
        return support::NewSymbol(reference.x, reference.y, width, height,
                                  {{.type = symPoly,
                                    .points = {{0, 0}, {width, 0}, {width, height}, {0, height}},
                                    .closed = true,
                                    .fillColor = kRed}});
    }
    static bool HitByPt(_CSymbol* symbol, const Place& place, _CTrans* trans, POINT pixel) {
        VARIANT_BOOL hit = 7;
        EXPECT_OK(symbol->ObjIdentByPt(place.at.x, place.at.y, place.angle, trans, pixel.x, pixel.y, &hit));
        return hit == VARIANT_TRUE;
    }
    static Ref<_CRect> NewRect(const RECT& values) {
        const auto rect = support::Create<CRect, _CRect>();
        EXPECT_OK(rect->put_Left(values.left));
        EXPECT_OK(rect->put_Top(values.top));
        EXPECT_OK(rect->put_Right(values.right));
        EXPECT_OK(rect->put_Bottom(values.bottom));
        return rect;
    }
    static bool HitByRect(_CSymbol* symbol, const Place& place, _CTrans* trans, const RECT& pixels) {
        VARIANT_BOOL hit = 7;
        EXPECT_OK(
            symbol->ObjIdentByRect(place.at.x, place.at.y, place.angle, trans, NewRect(pixels).Get(), &hit));
        return hit == VARIANT_TRUE;
    }
};

TEST_F(Hits, ASymbolWithoutElementsIsNeverHit) {
    SetFactors(1, 1);
    const auto trans = support::NewTrans();
    const auto symbol = support::NewSymbol();
    EXPECT_OK(symbol->CreateNew(0, 0, 100, 100, nullptr));
    EXPECT_FALSE(HitByPt(symbol.Get(), {}, trans.Get(), {50, 50}));
    EXPECT_FALSE(HitByRect(symbol.Get(), {}, trans.Get(), {0, 0, 100, 100}));
    EXPECT_FALSE(Dispatch(symbol).Call(L"ObjIdentByPt", {0, 0, 0.0, trans, 50, 50}).value.Bool());
}

TEST_F(Hits, TheOutlineBelongsToTheBox) {
    SetFactors(1, 1);
    const auto symbol = FilledBox({0, 0}, 100, 60);
    const auto trans = support::NewTrans();
    for (const POINT inside : {POINT{0, 0}, {100, 0}, {100, 60}, {0, 60}, {50, 0}, {100, 30}, {50, 30}})
        EXPECT_TRUE(HitByPt(symbol.Get(), {}, trans.Get(), inside)) << inside.x << ' ' << inside.y;
    for (const POINT outside : {POINT{-1, 0}, {101, 0}, {50, 61}, {50, -1}, {-1, -1}, {101, 61}})
        EXPECT_FALSE(HitByPt(symbol.Get(), {}, trans.Get(), outside)) << outside.x << ' ' << outside.y;
    EXPECT_TRUE(HitByRect(symbol.Get(), {}, trans.Get(), {100, 60, 200, 200})) << "a common corner";
    EXPECT_TRUE(HitByRect(symbol.Get(), {}, trans.Get(), {-10, -10, 200, 200})) << "around it";
    EXPECT_TRUE(HitByRect(symbol.Get(), {}, trans.Get(), {20, 20, 30, 30})) << "within";
    EXPECT_TRUE(HitByRect(symbol.Get(), {}, trans.Get(), {20, -20, 30, 200})) << "across";
    EXPECT_FALSE(HitByRect(symbol.Get(), {}, trans.Get(), {101, 0, 200, 60}));
    EXPECT_FALSE(HitByRect(symbol.Get(), {}, trans.Get(), {0, 61, 100, 100}));
}

TEST_F(Hits, WithoutTransformationOrRectangleAreAnError) {
    const auto symbol = FilledBox({0, 0}, 100, 60);
    VARIANT_BOOL hit = VARIANT_FALSE;
    HRESULT status = symbol->ObjIdentByPt(0, 0, 0, nullptr, 1, 1, &hit);
    EXPECT_EQ(support::Outcome(status), support::RunTimeError(91));
    status = symbol->ObjIdentByRect(0, 0, 0, support::NewTrans().Get(), nullptr, &hit);
    EXPECT_EQ(support::Outcome(status), support::RunTimeError(91));
}

TEST_F(Hits, AgreeWithTheArithmeticAtRandomPlaces) {
    int pointHits = 0;
    int rectHits = 0;
    constexpr int kPlaces = 400;
    for (int i = 0; i < kPlaces; ++i) {
        const double factor = RandomFactor();
        const Place place = RandomPlace(factor);
        const View view = RandomView();
        const LONG width = Random(400, 6000);
        const LONG height = Random(400, 6000);
        SetFactors(3, factor);
        const auto symbol = FilledBox(place.reference, width, height);
        const auto trans = support::NewTrans(view.scale, view.offsetX, view.offsetY);
        const std::vector<POINT> box = PixelBox(place, view, width, height);
        const LONG reach = Pixels(view, 2.0 * width * place.factor) + 5;
        const POINT pixel{box[0].x + Random(-reach, reach), box[0].y + Random(-reach, reach)};
        const bool hit = Contains(box, pixel);
        EXPECT_EQ(HitByPt(symbol.Get(), place, trans.Get(), pixel), hit);
        EXPECT_EQ(Dispatch(symbol)
                      .Call(L"ObjIdentByPt", {place.at.x, place.at.y, place.angle, trans, pixel.x, pixel.y})
                      .value.Bool(),
                  hit);
        EXPECT_TRUE(HitByPt(symbol.Get(), place, trans.Get(), box[Random(0, 3)])) << "a corner";
        const RECT rect{pixel.x, pixel.y, pixel.x + Random(1, reach), pixel.y + Random(1, reach)};
        const std::vector<POINT> corners{{rect.left, rect.top},
                                         {rect.right, rect.top},
                                         {rect.right, rect.bottom},
                                         {rect.left, rect.bottom}};
        const bool rectHit = !IsBeyondAnEdge(box, corners) && !IsBeyondAnEdge(corners, box);
        EXPECT_EQ(HitByRect(symbol.Get(), place, trans.Get(), rect), rectHit);
        rectHits += rectHit;
        pointHits += hit;
    }
    // Both answers come often enough to mean something.
    EXPECT_GT(pointHits, kPlaces / 20);
    EXPECT_LT(pointHits, kPlaces * 19 / 20);
    EXPECT_GT(rectHits, kPlaces / 20);
    EXPECT_LT(rectHits, kPlaces * 19 / 20);
}

TEST_F(Hits, AgreeWithTheDrawnPicture) {
    support::Canvas canvas;
    const std::vector<std::uint32_t> blank = canvas.Pixels();
    int coloured = 0;
    int outside = 0;
    for (int i = 0; i < 60; ++i) {
        const Place place{{Random(-300, 300), Random(-300, 300)},
                          {Random(600, 1800), Random(600, 1800)},
                          RandomAngle(),
                          Random(0, 1) == 0 ? 1.0 : 0.5};
        const View view{10, 0, 0};
        const LONG width = Random(200, 1200);
        const LONG height = Random(200, 1200);
        canvas.Reset();
        const auto trans = support::NewTrans(view.scale);
        const auto symbol = FilledBox(place.reference, width, height);
        const auto surface = support::PictureBox::Create(canvas, L"GraphicBox");
        EXPECT_OK(symbol->Draw(place.at.x, place.at.y, place.angle, surface.Get(), trans.Get(), 1,
                               place.factor, nullptr));
        const std::vector<POINT> box = PixelBox(place, view, width, height);
        const std::vector<std::uint32_t> pixels = canvas.Pixels();
        for (int n = 0; n < 200; ++n) {
            const POINT p{Random(0, canvas.Width() - 1), Random(0, canvas.Height() - 1)};
            const auto index = static_cast<std::size_t>(p.y * canvas.Width() + p.x);
            const bool hit = HitByPt(symbol.Get(), place, trans.Get(), p);
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
