#include "drawing/placed_symbol.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using namespace drawing;
using support::Dispatch;
using support::ElementSpec;
using support::Value;

struct Catch {
    bool caught = false;
    float x = 0;
    float y = 0;
    LONG worldX = -77;
    LONG worldY = -88;

    bool operator==(const Catch&) const = default;
};

void PrintTo(const Catch& result, std::ostream* out) {
    *out << (result.caught ? "caught " : "missed ") << result.x << ' ' << result.y << ", world "
         << result.worldX << ' ' << result.worldY;
}

class Snapping : public PlacedSymbolTest {
protected:
    static Catch CatchAt(_CSymbol* symbol, const Place& place, _CTrans* trans, float x, float y,
                         SHORT range) {
        Catch result{false, x, y};
        VARIANT_BOOL caught = 7;
        EXPECT_OK(symbol->CatchPt(&result.x, &result.y, &result.worldX, &result.worldY, place.at.x,
                                  place.at.y, place.angle, trans, range, &caught));
        EXPECT_TRUE(caught == VARIANT_TRUE || caught == VARIANT_FALSE);
        result.caught = caught == VARIANT_TRUE;
        return result;
    }
    static Catch Missed(float x, float y) { return {false, x, y}; }
    /// A symbol at (1000, 2000), ten units a pixel.
    Catch CatchIn(const std::vector<ElementSpec>& elements, float x, float y, SHORT range = 5) const {
        SetFactors(1, 1);
        return CatchAt(support::NewSymbol(0, 0, 1, 1, elements).Get(), at, trans.Get(), x, y, range);
    }

    Place at{{0, 0}, {1000, 2000}};
    Ref<_CTrans> trans = support::NewTrans(10);
    ElementSpec line{.type = symPoly, .points = {{0, 0}, {304, 0}, {300, 400}}};
};

TEST_F(Snapping, GivesTheWorldPointAndItsPixel) {
    EXPECT_EQ(CatchIn({line}, 128, 203), (Catch{true, 130, 200, 1304, 2000}));
    EXPECT_EQ(CatchIn({line}, 129.5F, 243.9F), (Catch{true, 130, 240, 1300, 2400}));
}

TEST_F(Snapping, ExactlyTheRangeAwayIsTooFar) {
    for (const auto& [x, y] :
         {std::pair(95.0F, 200.0F), {105.0F, 200.0F}, {100.0F, 195.0F}, {100.0F, 205.0F}})
        EXPECT_EQ(CatchIn({line}, x, y), Missed(x, y));
    EXPECT_EQ(CatchIn({line}, 95.1F, 204.9F), (Catch{true, 100, 200, 1000, 2000})) << "the area is a square";
}

TEST_F(Snapping, ARangeOfZeroOrLessCatchesNothing) {
    EXPECT_EQ(CatchIn({line}, 100, 200, 0), Missed(100, 200));
    EXPECT_EQ(CatchIn({line}, 100, 200, -5), Missed(100, 200));
    EXPECT_EQ(CatchIn({line}, 100, 200, 1), (Catch{true, 100, 200, 1000, 2000}));
}

TEST_F(Snapping, TheFirstPointWinsNotTheNearest) {
    const ElementSpec close{.type = symPoly, .points = {{30, 0}, {10, 0}}};
    EXPECT_EQ(CatchIn({close}, 101, 200), (Catch{true, 103, 200, 1030, 2000}));
    const ElementSpec nearer{.type = symCircle, .points = {{10, 0}}, .radius = 50};
    EXPECT_EQ(CatchIn({close, nearer}, 101, 200), (Catch{true, 103, 200, 1030, 2000}));
    EXPECT_EQ(CatchIn({nearer, close}, 101, 200), (Catch{true, 101, 200, 1010, 2000}));
}

TEST_F(Snapping, CentresAndTheEndsOfArcsButNoTexts) {
    const ElementSpec circle{.type = symCircle, .points = {{0, 0}}, .radius = 300};
    EXPECT_TRUE(CatchIn({circle}, 100, 200).caught);
    EXPECT_FALSE(CatchIn({circle}, 130, 200).caught) << "a point on the circle";
    const ElementSpec arc{.type = symArc, .points = {{0, 0}, {300, 0}, {0, 300}}, .radius = 300};
    EXPECT_TRUE(CatchIn({arc}, 100, 200).caught);
    EXPECT_TRUE(CatchIn({arc}, 130, 200).caught);
    EXPECT_TRUE(CatchIn({arc}, 100, 230).caught);
    EXPECT_FALSE(CatchIn({arc}, 121, 221).caught) << "in the middle of the arc";
    EXPECT_FALSE(CatchIn({{.type = symText, .points = {{0, 0}}, .text = L"Bad"}}, 100, 200).caught);
    EXPECT_FALSE(CatchIn({{.type = symUndefined, .points = {{0, 0}}}}, 100, 200).caught);
}

TEST_F(Snapping, ASymbolWithoutElementsCatchesNothing) {
    EXPECT_EQ(CatchAt(support::NewSymbol().Get(), {}, trans.Get(), 0, 0, 100), Missed(0, 0));
}

TEST_F(Snapping, WithoutTransformationIsAnError) {
    Catch result;
    VARIANT_BOOL caught = VARIANT_FALSE;
    const HRESULT status =
        support::NewSymbol(0, 0, 1, 1, {line})
            ->CatchPt(&result.x, &result.y, &result.worldX, &result.worldY, 0, 0, 0, nullptr, 5, &caught);
    EXPECT_EQ(support::Outcome(status), support::RunTimeError(91));
    EXPECT_EQ(result, Catch{});
}

TEST_F(Snapping, FollowsTheScreenFactorOfTheLastDrawing) {
    const auto symbol = support::NewSymbol(0, 0, 1, 1, {{.type = symPoly, .points = {{300, 0}}}});
    SetFactors(9, 2);
    EXPECT_EQ(CatchAt(symbol.Get(), at, trans.Get(), 160, 200, 3), (Catch{true, 160, 200, 1600, 2000}));
    SetFactors(9, 0);
    EXPECT_EQ(CatchAt(symbol.Get(), at, trans.Get(), 130, 200, 3), (Catch{true, 130, 200, 1300, 2000}));
}

TEST_F(Snapping, GivesBackIntoAScriptsVariables) {
    SetFactors(1, 1);
    const Dispatch symbol(support::NewSymbol(0, 0, 1, 1, {line}));
    const auto call = [&](Value& x, Value& y, Value& worldX, Value& worldY) {
        return symbol.Call(L"CatchPt", {Value::Variable(x), Value::Variable(y), Value::Variable(worldX),
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

/// The first candidate in order within the square, looked for once more.
TEST_F(Snapping, AgreesWithTheArithmeticAtRandomPlaces) {
    int caught = 0;
    constexpr int kPlaces = 400;
    for (int i = 0; i < kPlaces; ++i) {
        const double factor = RandomFactor();
        const Place place = RandomPlace(factor);
        const View view = RandomView();
        SetFactors(3, factor);
        const auto point = [&] { return POINT{Random(-500, 500), Random(-500, 500)}; };
        const std::vector<ElementSpec> elements{
            {.type = symText, .points = {point()}, .text = L"kein Punkt"},
            {.type = symPoly, .points = {point(), point(), point(), point()}},
            {.type = symArc, .points = {point(), point(), point()}, .radius = 100},
            {.type = symCircle, .points = {point()}, .radius = 100},
            {.type = symPoly, .points = {point(), point()}, .closed = true}};
        std::vector<POINT> worlds;
        for (std::size_t n = 1; n < elements.size(); ++n)
            for (const POINT& p : elements[n].points)
                worlds.push_back(World(place, p));
        const POINT goal = Pixel(view, worlds[static_cast<std::size_t>(Random(0, 9))]);
        const auto x = static_cast<float>(goal.x + static_cast<double>(Random(-300, 300)) / 10);
        const auto y = static_cast<float>(goal.y + static_cast<double>(Random(-300, 300)) / 10);
        const auto range = static_cast<SHORT>(Random(0, 30));
        const auto hit = std::find_if(worlds.begin(), worlds.end(), [&](POINT world) {
            const POINT pixel = Pixel(view, world);
            return std::fabs(static_cast<double>(pixel.x) - x) < range &&
                   std::fabs(static_cast<double>(pixel.y) - y) < range;
        });
        Catch expected = Missed(x, y);
        if (hit != worlds.end()) {
            const POINT pixel = Pixel(view, *hit);
            expected = {true, static_cast<float>(pixel.x), static_cast<float>(pixel.y), hit->x, hit->y};
            ++caught;
        }
        const auto symbol = support::NewSymbol(place.reference.x, place.reference.y, 1, 1, elements);
        const auto own = support::NewTrans(view.scale, view.offsetX, view.offsetY);
        EXPECT_EQ(CatchAt(symbol.Get(), place, own.Get(), x, y, range), expected) << "place " << i;
    }
    EXPECT_GT(caught, kPlaces / 10);
    EXPECT_LT(caught, kPlaces * 9 / 10);
}

} // namespace
