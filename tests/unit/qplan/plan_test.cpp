#include "qplan/plan/plan.h"

#include "qplan/model/own_catalogue.h"
#include "support/allocation_counter.h"
#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/opaque_transformation.h"
#include "support/recording_surface.h"
#include "support/scaled_transformation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <random>

namespace {

using namespace qplan;
using qsymbol::SymbolPosition;
using support::ErrorNumberOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

/// A closed square about its reference point.
qsymbol::Symbol Square(std::int32_t side) {
    qsymbol::Symbol symbol;
    symbol.width = symbol.height = side;
    symbol.refX = symbol.refY = side / 2;
    symbol.elements.push_back(support::Poly({{0, 0}, {side, 0}, {side, side}, {0, side}}, true));
    return symbol;
}

/// A host's symbol that does something when it is asked, and whose limits nobody knows.
class Meddler final : public PlacedSymbol {
public:
    std::function<void()> onQuestion = [] {};
    std::function<void()> onReach = [] {};
    std::uint64_t edition = 0;
    bool answer = false;
    mutable int questions = 0;

    std::uint64_t Edition() const override { return Asked(), edition; }
    SymbolReach Reach() const override { return onReach(), SymbolReach::Unlimited(); }
    bool IsHitAt(const SymbolPosition&, const View&, qmath::Point) const override { return Asked(); }
    bool IsHitBy(const SymbolPosition&, const View&, const qmath::Rect&) const override { return Asked(); }
    std::optional<qsymbol::CaughtPoint> CatchPt(const SymbolPosition&, const View&, float, float,
                                                std::int16_t) const override {
        Asked();
        return std::nullopt;
    }
    qmath::Rect Bounds(const SymbolPosition&, double) const override { return Asked(), qmath::Rect(); }
    void Draw(const SymbolPosition&, qsymbol::Surface&, const qsymbol::Transformation&,
              const qsymbol::DrawFactors&, std::int32_t) const override {
        Asked();
    }
    std::shared_ptr<const qsymbol::Symbol> Value() const override {
        return std::make_shared<qsymbol::Symbol>();
    }

private:
    bool Asked() const {
        ++questions;
        onQuestion();
        return answer;
    }
};

/// A catalogue of squares, and of symbols of a host.
class Source final : public SymbolSource {
public:
    std::map<std::u16string, std::shared_ptr<const PlacedSymbol>, std::less<>> symbols;
    mutable std::uint64_t edition = 0;
    bool knowsItsEdition = true;
    std::function<void()> onFind = [] {};

    std::shared_ptr<const PlacedSymbol> Find(std::u16string_view name) override {
        onFind();
        const auto found = symbols.find(name);
        return found == symbols.end() ? nullptr : found->second;
    }
    std::uint64_t Edition() const override { return knowsItsEdition ? edition : ++edition; }
};

class PlanOfSquares : public testing::Test {
protected:
    PlanOfSquares() {
        catalogue->Put(u"Klein", Square(100));
        catalogue->Put(u"Groß", Square(1000));
        plan.SetSymbols(catalogue);
    }
    std::int32_t Add(std::u16string_view name, std::int32_t x, std::int32_t y) {
        return plan.Add(name, {{x, y}, 0});
    }

    qsymbol::PlainTransformation map = support::ScaledTransformation(1);
    View view{map};
    std::shared_ptr<OwnCatalogue> catalogue = std::make_shared<OwnCatalogue>();
    Plan plan;
};

TEST_F(PlanOfSquares, WhatIsWrongHasItsNumber) {
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    const std::int32_t id = Add(u"Klein", 0, 0);
    Plan bare;
    EXPECT_EQ(ErrorNumberOf([&] { bare.Add(u"Klein", {}); }), 91);
    EXPECT_EQ(ErrorNumberOf([&] { Add(u"Unbekannt", 0, 0); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { plan.Add(u"Klein", {{}, kNaN}); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { plan.Move(id, {{}, -kNaN}); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { plan.Move(id + 1, {}); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { plan.RemoveById(id + 1); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { plan.SetSymbols(std::make_shared<OwnCatalogue>()); }), 5);
    EXPECT_EQ(plan.Symbols(), catalogue) << "nothing has changed";
    plan.SetSymbols(nullptr);
    EXPECT_EQ(ErrorNumberOf([&] { Add(u"Klein", 0, 0); }), 91);
    EXPECT_THAT(plan.HitTest(view, {0, 0}), Optional(id)) << "what is there stays";
    EXPECT_EQ(plan.Count(), 1);
}

TEST_F(PlanOfSquares, IdsAreNeverUsedAgain) {
    const std::int32_t first = Add(u"Klein", 0, 0);
    const std::int32_t second = Add(u"groß", 0, 0);
    EXPECT_EQ(plan.NameOf(*plan.ById(second)), u"groß") << "as it was placed";
    plan.RemoveById(second);
    EXPECT_GT(Add(u"Klein", 0, 0), second);
    plan.Clear();
    EXPECT_EQ(plan.Count(), 0);
    const std::int32_t last = Add(u"Klein", 0, 0);
    EXPECT_GT(last, second + 1);
    for (const std::int32_t id : {first, second, 0, -1, last + 1, std::numeric_limits<std::int32_t>::min()})
        EXPECT_EQ(plan.ById(id), nullptr) << id;
    for (const std::int32_t position : {0, 2, -1})
        EXPECT_EQ(plan.ByPos(position), nullptr) << position;
    EXPECT_EQ(plan.ByPos(1)->id, last);
}

TEST_F(PlanOfSquares, TheLastLiesOnTop) {
    EXPECT_FALSE(plan.HitTest(view, {0, 0}));
    EXPECT_FALSE(plan.CatchPt(view, 0, 0, 10));
    EXPECT_FALSE(plan.Extent(1));
    const std::int32_t below = Add(u"Groß", 0, 0);
    const std::int32_t above = Add(u"Klein", 0, 0);
    EXPECT_THAT(plan.HitTest(view, {50, 50}), Optional(above));
    EXPECT_THAT(plan.HitTest(view, {51, 50}), Optional(below));
    EXPECT_THAT(plan.HitRect(view, {0, 0, 1, 1}), ElementsAre(below, above));
    EXPECT_THAT(plan.HitRect(view, {501, 0, 600, 1}), IsEmpty());
    EXPECT_EQ(plan.Extent(1), (qmath::Rect{-500, -500, 500, 500}));
    EXPECT_EQ(plan.Extent(2), (qmath::Rect{-1000, -1000, 1000, 1000}));
    // Of corners that are equally near that of the topmost symbol.
    Add(u"Klein", 20, 100); // its corner is (-30, 50)
    EXPECT_EQ(plan.CatchPt(view, -40, 50, 30)->world, (qmath::Point{-30, 50}));
    EXPECT_EQ(plan.CatchPt(view, -41, 50, 30)->world, (qmath::Point{-50, 50}));
}

TEST_F(PlanOfSquares, TheNextCallSeesEveryChange) {
    const std::int32_t id = Add(u"Klein", 0, 0);
    EXPECT_FALSE(plan.HitTest(view, {400, 0}));
    EXPECT_EQ(plan.Extent(1)->right, 50);
    catalogue->Put(u"KLEIN", Square(1000));
    EXPECT_THAT(plan.HitTest(view, {400, 0}), Optional(id));
    EXPECT_EQ(plan.Extent(1)->right, 500);
    const qmath::Rect around{-2000, -2000, 2000, 2000};
    EXPECT_THAT(plan.HitRect(view, around), ElementsAre(id));
    plan.Move(id, {{5000, 0}, 0});
    EXPECT_THAT(plan.HitRect(view, around), IsEmpty());
    EXPECT_FALSE(plan.HitTest(view, {400, 0}));
    EXPECT_THAT(plan.HitTest(view, {5400, 0}), Optional(id));
    auto other = std::make_shared<OwnCatalogue>();
    other->Put(u"Klein", Square(10));
    plan.SetSymbols(other);
    EXPECT_FALSE(plan.HitTest(view, {5400, 0}));
    EXPECT_EQ(plan.Extent(1)->right, 5005);
}

TEST_F(PlanOfSquares, TheNextCallSeesASymbolGrowToAnySide) {
    const std::int32_t id = Add(u"Klein", 0, 0);
    for (const qmath::Point far : {qmath::Point{-900, 0}, {900, 0}, {0, -900}, {0, 900}}) {
        EXPECT_FALSE(plan.HitTest(view, far));
        qsymbol::Symbol grown = Square(100);
        grown.elements.push_back(support::Circle({50 + far.x, 50 + far.y}, 1));
        catalogue->Put(u"Klein", grown);
        EXPECT_THAT(plan.Visible(map, qmath::Rect{far.x, far.y, far.x + 1, far.y + 1}), ElementsAre(id));
        catalogue->Put(u"Klein", Square(100));
    }
}

TEST_F(PlanOfSquares, ASymbolThatIsExchangedInItsSourceIsTakenByTheNextPlacement) {
    const auto source = std::make_shared<Source>();
    source->symbols[u"Tür"] = std::make_shared<OwnSymbol>(Square(100));
    plan.SetSymbols(source);
    const std::int32_t old = Add(u"Tür", 0, 0);
    source->symbols[u"Tür"] = std::make_shared<OwnSymbol>(Square(1000));
    const std::int32_t fresh = Add(u"Tür", 10000, 0);
    EXPECT_FALSE(plan.HitTest(view, {400, 0})) << "what is placed stays";
    EXPECT_THAT(plan.HitTest(view, {10400, 0}), Optional(fresh));
    plan.SetSymbols(source); // the same once more changes nothing
    EXPECT_THAT(plan.HitTest(view, {0, 0}), Optional(old));
    EXPECT_FALSE(plan.HitTest(view, {400, 0}));
}

TEST_F(PlanOfSquares, WhatIsMovedOverAndOverIsFoundAndDoesNotPileUp) {
    const std::int32_t stays = Add(u"Klein", -5000, 0);
    const std::int32_t goes = Add(u"Klein", 0, 0);
    plan.Move(goes, {{50, 0}, 0}); // before anything was asked
    EXPECT_THAT(plan.HitTest(view, {100, 0}), Optional(goes));
    for (std::int32_t i = 0; i < 5; ++i)
        plan.Move(goes, {{1000 * i, 0}, 0}); // more often than there are placements
    EXPECT_THAT(plan.HitTest(view, {4050, 0}), Optional(goes));
    EXPECT_FALSE(plan.HitTest(view, {100, 0}));
    const support::AllocationCounter counter;
    for (std::int32_t i = 0; i < 5000; ++i) {
        plan.Move(goes, {{1000 * i, 0}, 0});
        ASSERT_THAT(plan.HitTest(view, {1000 * i + 50, 0}), Optional(goes)) << i;
    }
    EXPECT_LT(counter.Peak(), 300000U);
    plan.Move(goes, {{0, 0}, 0});
    plan.RemoveById(goes);
    EXPECT_FALSE(plan.HitTest(view, {0, 0}));
    EXPECT_THAT(plan.HitTest(view, {-5000, 0}), Optional(stays));
}

TEST_F(PlanOfSquares, AMapOfAHostHidesNothing) {
    const std::int32_t id = Add(u"Klein", 0, 0);
    // Pixels outside of what can be led back, to each side.
    const support::OpaqueTransformation same{qmath::Transform()};
    constexpr std::int32_t kFar = 2000000000;
    for (const qmath::Rect& rect : {qmath::Rect{-kFar, -9, 9, 9}, qmath::Rect{-9, -kFar, 9, 9},
                                    qmath::Rect{-9, -9, kFar, 9}, qmath::Rect{-9, -9, 9, kFar}})
        EXPECT_THAT(plan.HitRect(View{same}, rect), ElementsAre(id));
    // One that cannot tell how long the widest line is.
    qmath::Transform near;
    near.SetScale(1e-9);
    EXPECT_THAT(plan.Visible(support::OpaqueTransformation(near), qmath::Rect{500, 500, 600, 600}),
                ElementsAre(id));
}

TEST_F(PlanOfSquares, ShowsAtEveryFactor) {
    qsymbol::Symbol shifted = Square(100);
    shifted.refX = shifted.refY = -1000;
    catalogue->Put(u"Klein", shifted);
    const std::int32_t id = Add(u"Klein", 0, 0);
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    EXPECT_THAT(plan.Visible(map, qmath::Rect{-3, -3, 3, 3}), IsEmpty());
    EXPECT_THAT(plan.Visible(map, qmath::Rect{-3, -3, 3, 3}, 0), ElementsAre(id)) << "all in one point";
    EXPECT_THAT(plan.Visible(map, qmath::Rect{500, 500, 550, 550}, 0.5), ElementsAre(id));
    EXPECT_THAT(plan.Visible(map, qmath::Rect{-2100, -2100, -2000, -2000}, -2), ElementsAre(id));
    EXPECT_THAT(plan.Visible(map, qmath::Rect{-9, -9, 2000000000, 2000000000}, 1e6 + 1), ElementsAre(id));
    EXPECT_THAT(plan.Visible(map, qmath::Rect{-3, -3, 3, 3}, kEndless), ElementsAre(id)) << "nobody knows";
}

TEST_F(PlanOfSquares, DrawsWhatShowsAndAsksForNothingElse) {
    for (std::int32_t i = 0; i < 100; ++i)
        Add(u"Klein", i * 1000, 0);
    support::RecordingSurface surface;
    plan.Draw(surface, map, qmath::Rect{9000, 0, 11000, 10});
    EXPECT_EQ(std::ranges::count_if(surface.calls,
                                    [](const std::string& call) { return call.starts_with("Polygon"); }),
              3);
    EXPECT_THAT(plan.Visible(map, std::nullopt), testing::SizeIs(100));
    // On the plan's main drawing area the screen factor counts: twice as far apart from the reference point.
    surface.name = u"GraphicBox";
    EXPECT_THAT(plan.Visible(map, qmath::Rect{9080, 0, 9081, 10}), IsEmpty());
    surface.calls.clear();
    plan.Draw(surface, map, qmath::Rect{9080, 0, 9081, 10}, {.printer = 1, .screen = 2});
    EXPECT_EQ(std::ranges::count_if(surface.calls,
                                    [](const std::string& call) { return call.starts_with("Polygon"); }),
              1);
}

TEST(Plan, SymbolsAreAskedForChangesOnlyWhenTheirSourceMoved) {
    const auto source = std::make_shared<Source>();
    const auto symbol = std::make_shared<Meddler>();
    source->symbols[u"Fremd"] = symbol;
    Plan plan;
    plan.SetSymbols(source);
    plan.Add(u"Fremd", {});
    plan.Extent(1);
    symbol->questions = 0;
    for (int i = 0; i < 5; ++i)
        plan.Extent(1);
    EXPECT_EQ(symbol->questions, 0);
    ++source->edition;
    plan.Extent(1);
    EXPECT_EQ(symbol->questions, 1);
    source->knowsItsEdition = false;
    plan.Extent(1);
    plan.Extent(1);
    EXPECT_EQ(symbol->questions, 3);
}

TEST(Plan, StandsSymbolsThatChangeItWhileTheyAreAsked) {
    const qsymbol::PlainTransformation map = support::ScaledTransformation(1);
    const View view{map};
    support::RecordingSurface surface;
    const auto source = std::make_shared<Source>();
    source->symbols[u"Fest"] = std::make_shared<OwnSymbol>(Square(100));
    Plan plan;
    std::int32_t bottom = 0;
    const std::vector<std::function<void()>> questions{
        [&] {
            EXPECT_TRUE(plan.HitTest(view, {0, 0}).value_or(bottom) >= bottom);
        },
        [&] {
            plan.HitRect(view, {0, 0, 9, 9});
        },
        [&] { plan.CatchPt(view, 50, 50, 5); },
        [&] { plan.Extent(1); },
        [&] {
            plan.Draw(surface, map, qmath::Rect{0, 0, 9, 9});
        },
    };
    const std::vector<std::function<void()>> changes{
        [&] { plan.Clear(); },
        [&] { plan.Add(u"Fest", {}); },
        [&] { plan = plan.Successor(); },
        [&] {
            if (const Placement* const first = plan.ByPos(1))
                plan.RemoveById(first->id);
        },
    };
    for (std::size_t question = 0; question < questions.size(); ++question)
        for (std::size_t change = 0; change < changes.size(); ++change) {
            SCOPED_TRACE(question * 10 + change);
            const auto symbol = std::make_shared<Meddler>();
            source->symbols[u"Fremd"] = symbol;
            plan = Plan();
            plan.SetSymbols(source);
            bottom = plan.Add(u"Fest", {});
            for (int i = 0; i < 700; ++i)
                plan.Add(i % 2 == 0 ? u"Fremd" : u"Fest", {{i, 0}, 0});
            source->knowsItsEdition = false;
            int left = 400;
            symbol->onQuestion = [&] {
                if (left-- > 0)
                    changes[change]();
            };
            questions[question]();
            EXPECT_LT(left, 400);
        }
}

TEST(Plan, ASymbolThatChangesThePlanLetsTheOnesBelowBeFound) {
    const qsymbol::PlainTransformation map = support::ScaledTransformation(1);
    const auto source = std::make_shared<Source>();
    const auto meddler = std::make_shared<Meddler>();
    source->symbols[u"Fest"] = std::make_shared<OwnSymbol>(Square(100));
    source->symbols[u"Fremd"] = meddler;
    Plan plan;
    plan.SetSymbols(source);
    const std::int32_t lowest = plan.Add(u"Fest", {});
    const std::int32_t goes = plan.Add(u"Fest", {});
    plan.Add(u"Fremd", {{90000, 0}, 0});
    meddler->onQuestion = [&] {
        if (plan.ById(goes) != nullptr)
            plan.RemoveById(goes);
        plan.Add(u"Fest", {}); // above: not asked any more
    };
    EXPECT_THAT(plan.HitTest(View{map}, {0, 0}), Optional(lowest));
}

TEST(Plan, WhatASymbolRemovesWhileItIsAskedIsNotAskedAnyMore) {
    const qsymbol::PlainTransformation map = support::ScaledTransformation(1);
    const View view{map};
    support::RecordingSurface surface;
    const auto source = std::make_shared<Source>();
    const auto first = std::make_shared<Meddler>();
    const auto second = std::make_shared<Meddler>();
    source->symbols = {{u"A", first}, {u"B", second}};
    const std::vector<std::function<void(Plan&)>> questions{
        [&](Plan& plan) {
            plan.HitRect(view, {0, 0, 9, 9});
        },
        [&](Plan& plan) { plan.CatchPt(view, 5, 5, 5); },
        [&](Plan& plan) { plan.Extent(1); },
        [&](Plan& plan) {
            plan.Draw(surface, map, qmath::Rect{0, 0, 9, 9});
        },
    };
    for (std::size_t question = 0; question < questions.size(); ++question) {
        Plan plan;
        plan.SetSymbols(source);
        plan.Add(u"A", {});
        const std::int32_t gone = plan.Add(u"B", {});
        first->onQuestion = [&] {
            if (plan.ById(gone) != nullptr)
                plan.RemoveById(gone);
        };
        second->questions = 0;
        questions[question](plan);
        first->onQuestion = [] {};
        EXPECT_EQ(second->questions, 0) << question;
        EXPECT_EQ(plan.Count(), 1) << question;
    }
}

TEST(Plan, StandsSourcesAndReachesThatEmptyItWhileTheyAreAsked) {
    const auto source = std::make_shared<Source>();
    const auto symbol = std::make_shared<Meddler>();
    source->symbols[u"Fremd"] = symbol;
    Plan plan;
    plan.SetSymbols(source);
    plan.Add(u"Fremd", {});
    symbol->edition = ++source->edition;
    symbol->onReach = [&] { plan.Clear(); };
    EXPECT_FALSE(plan.Extent(1));
    EXPECT_EQ(plan.Count(), 0);
    symbol->onReach = [] {};
    plan.Add(u"Fremd", {});
    const auto other = std::make_shared<Source>(*source);
    other->onFind = [&] { plan.Clear(); };
    EXPECT_EQ(ErrorNumberOf([&] { plan.SetSymbols(other); }), 5);
    EXPECT_EQ(plan.Symbols(), source);
}

TEST(Plan, PositionsAndIdsHoldWhileManyGo) {
    const auto catalogue = std::make_shared<OwnCatalogue>();
    catalogue->Put(u"Klein", Square(100));
    Plan plan;
    plan.SetSymbols(catalogue);
    std::map<std::int32_t, std::int32_t> expected; // x by id
    std::mt19937 random(7);
    for (int i = 0; i < 3000; ++i)
        expected[plan.Add(u"Klein", {{i, 0}, 0})] = i;
    for (int round = 0; !expected.empty(); ++round) {
        const auto gone = std::next(
            expected.begin(), static_cast<std::ptrdiff_t>(random() % expected.size() / (round % 3 + 1)));
        plan.RemoveById(gone->first);
        EXPECT_EQ(plan.ById(gone->first), nullptr);
        expected.erase(gone);
        ASSERT_EQ(plan.Count(), static_cast<std::int32_t>(expected.size()));
        if (round % 100 != 0)
            continue;
        std::int32_t position = 0;
        std::int32_t last = 0;
        for (const auto& [id, x] : expected) {
            ASSERT_EQ(plan.ByPos(++position)->id, id);
            ASSERT_EQ(plan.NextAfter(last)->id, id);
            ASSERT_EQ(plan.ById(id)->position.at.x, x);
            last = id;
        }
        ASSERT_EQ(plan.NextAfter(last), nullptr);
    }
}

TEST(Plan, TakesAHundredBytesAPlacementAtMost) {
    // Just above a power of two, where memory that doubles is worst used.
    constexpr std::int32_t kCount = 66000;
    const auto catalogue = std::make_shared<OwnCatalogue>();
    catalogue->Put(u"Klein", Square(100));
    const qsymbol::PlainTransformation map = support::ScaledTransformation(1);
    const support::AllocationCounter counter;
    Plan plan;
    plan.SetSymbols(catalogue);
    for (std::int32_t i = 0; i < kCount; ++i)
        plan.Add(u"Klein", {{i % 257 * 300, i / 257 * 300}, i * 0.1});
    EXPECT_TRUE(plan.HitTest(View{map}, {300, 300}));
    EXPECT_LT(counter.Peak(), kCount * 100U);
}

} // namespace
