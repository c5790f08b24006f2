#include "plan/plan_fixture.h"
#include "support/servers.h"
#include "support/text.h"

#include <gmock/gmock.h>

#include <random>

/// What a plan answers and what a plain loop over its placements answers, asking each symbol alone, are the same.

namespace {

using namespace plan;

enum class Kind { Own, Host, Mixed };

struct Case {
    const char* name;
    Kind kind;
    bool turns; ///< a transformation of the host's own
    int questions;
};

void PrintTo(const Case& tested, std::ostream* out) {
    *out << tested.name;
}

class Loop : public PlanTest, public testing::WithParamInterface<Case> {
protected:
    struct Placed {
        LONG id;
        Ref<_CSymbol> symbol;
        LONG x, y;
        double angle;
    };

    void SetUp() override {
        const auto host = HostCatalogue::Create();
        for (int i = 0; i < 3; ++i) {
            const bool own = GetParam().kind == Kind::Own || (GetParam().kind == Kind::Mixed && i == 1);
            host->symbols[std::wstring(1, static_cast<wchar_t>(L'A' + i))] =
                own ? symbols[i] : Ref<_CSymbol>(HostSymbol::Create(symbols[i]).Get());
        }
        if (GetParam().kind != Kind::Own) {
            ASSERT_OK(plan->putref_Symbols(host.Get()));
        }
        for (int i = 0; i < 60; ++i)
            Place();
    }
    LONG Random(LONG least, LONG most) { return std::uniform_int_distribution<LONG>(least, most)(random_); }
    double RandomAngle() {
        return Random(0, 2) == 0 ? Random(0, 3) * 1.5707963267948966 : Random(0, 6283) / 1000.0;
    }
    void Place() {
        const wchar_t name[] = {static_cast<wchar_t>(L'A' + Random(0, 2)), 0};
        Placed placed{0, {}, Random(-900, 900), Random(-900, 900), RandomAngle()};
        Ref<_CPlacement> made;
        ASSERT_OK(plan->Add(Bstr(name), placed.x, placed.y, placed.angle, made.Put()));
        ASSERT_OK(made->get_Symbol(placed.symbol.Put()));
        placed.id = IdOf(made.Get());
        loop_.push_back(std::move(placed));
    }
    /// Adds, removes, moves, or changes a symbol.
    void Change() {
        const auto at = static_cast<std::size_t>(Random(0, static_cast<LONG>(loop_.size()) - 1));
        switch (Random(0, 3)) {
        case 0: Place(); break;
        case 1:
            EXPECT_OK(plan->RemoveById(loop_[at].id));
            loop_.erase(loop_.begin() + static_cast<std::ptrdiff_t>(at));
            break;
        case 2: {
            const Ref<_CPlacement> placement = ById(loop_[at].id);
            EXPECT_OK(placement->put_LogX(loop_[at].x = Random(-900, 900)));
            EXPECT_OK(placement->put_Angle(loop_[at].angle = RandomAngle()));
            break;
        }
        default: EXPECT_OK(symbols[Random(0, 2)]->put_Height(Random(0, 900)));
        }
    }

    LONG LoopHit(LONG x, LONG y) const {
        for (std::size_t i = loop_.size(); i-- > 0;) {
            VARIANT_BOOL isHit = VARIANT_FALSE;
            const Placed& placed = loop_[i];
            EXPECT_OK(placed.symbol.Get()->ObjIdentByPt(placed.x, placed.y, placed.angle, trans.Get(), x, y,
                                                        &isHit));
            if (isHit != VARIANT_FALSE)
                return placed.id;
        }
        return 0;
    }
    std::vector<LONG> LoopRect(const RECT& rect) const {
        std::vector<LONG> hits;
        for (const Placed& placed : loop_) {
            VARIANT_BOOL isHit = VARIANT_FALSE;
            EXPECT_OK(placed.symbol.Get()->ObjIdentByRect(placed.x, placed.y, placed.angle, trans.Get(),
                                                          NewRect(rect).Get(), &isHit));
            if (isHit != VARIANT_FALSE)
                hits.push_back(placed.id);
        }
        return hits;
    }
    Caught LoopCatch(float x, float y, SHORT range) const {
        Caught nearest{false, x, y, -1, -2};
        double least = 0;
        for (const Placed& placed : loop_) {
            Caught caught{true, x, y, 0, 0};
            VARIANT_BOOL isCaught = VARIANT_FALSE;
            EXPECT_OK(placed.symbol.Get()->CatchPt(&caught.x, &caught.y, &caught.worldX, &caught.worldY,
                                                   placed.x, placed.y, placed.angle, trans.Get(), range,
                                                   &isCaught));
            const double distance = std::hypot(caught.x - x, caught.y - y);
            if (isCaught != VARIANT_FALSE && (!nearest.isCaught || distance <= least)) {
                nearest = caught;
                least = distance;
            }
        }
        return nearest;
    }
    std::optional<RECT> LoopExtent() const {
        std::optional<RECT> extent;
        for (const Placed& placed : loop_) {
            Ref<_CRect> bounds;
            EXPECT_OK(placed.symbol.Get()->GetBoundingRect(placed.x, placed.y, placed.angle, bounds.InOut()));
            const RECT one = *Edges(bounds.Get());
            const RECT all = extent.value_or(one);
            extent = {std::min(all.left, one.left), std::min(all.top, one.top),
                      std::max(all.right, one.right), std::max(all.bottom, one.bottom)};
        }
        return extent;
    }
    void ExpectSamePicture() const {
        support::Canvas drawn;
        support::Canvas expected;
        EXPECT_OK(plan->Draw(support::PictureBox::Create(drawn).Get(), trans.Get()));
        const auto box = support::PictureBox::Create(expected);
        for (const Placed& placed : loop_) {
            LONG noMark = -1;
            EXPECT_OK(placed.symbol.Get()->Draw(placed.x, placed.y, placed.angle, box.Get(), trans.Get(), 1,
                                                1, &noMark));
        }
        EXPECT_TRUE(support::SamePicture(drawn, expected));
        EXPECT_TRUE(support::IsDrawnOn(drawn));
    }

    Ref<_CTrans> trans = GetParam().turns ? TurningTrans::Create(6) : support::NewTrans(6, -700, -700);

private:
    std::vector<Placed> loop_;
    std::mt19937 random_{20260101};
};

INSTANTIATE_TEST_SUITE_P(Plans, Loop,
                         testing::Values(Case{"Own", Kind::Own, false, 150},
                                         Case{"OwnTurned", Kind::Own, true, 40},
                                         Case{"Host", Kind::Host, false, 40},
                                         Case{"Mixed", Kind::Mixed, true, 40}),
                         [](const auto& tested) { return tested.param.name; });

TEST_P(Loop, AnswersTheSame) {
    int hits = 0;
    int catches = 0;
    for (int i = 0; i < GetParam().questions; ++i) {
        Change();
        // The factor of the last drawing decides for both.
        const double factor = std::vector{0.0, 1.0, 2.5, -0.5}[i / 8 % 4];
        EXPECT_OK(symbols[0]->Draw(0, 0, 0, nullptr, nullptr, 1, factor, nullptr));
        const LONG x = Random(-30, 270);
        const LONG y = Random(-30, 270);
        const LONG hit = LoopHit(x, y);
        EXPECT_EQ(HitTest(trans.Get(), x, y), hit) << i;
        hits += hit != 0;
        const RECT rect{x, y, x + Random(-20, 60), y + Random(-20, 60)};
        EXPECT_EQ(HitRect(trans.Get(), rect), LoopRect(rect)) << i;
        const auto range = static_cast<SHORT>(Random(-1, 12));
        const Caught caught = LoopCatch(static_cast<float>(x) + 0.25f, static_cast<float>(y), range);
        EXPECT_EQ(CatchPt(trans.Get(), static_cast<float>(x) + 0.25f, static_cast<float>(y), range), caught)
            << i;
        catches += caught.isCaught;
        if (i % 10 != 0)
            continue;
        Ref<_CRect> extent;
        VARIANT_BOOL has = VARIANT_FALSE;
        EXPECT_OK(plan->Extent(extent.InOut(), &has));
        const std::optional<RECT> expected = LoopExtent();
        const std::optional<RECT> edges = Edges(extent.Get());
        ASSERT_TRUE(expected && edges);
        EXPECT_NE(EqualRect(&*expected, &*edges), FALSE) << i;
        ExpectSamePicture();
    }
    EXPECT_GT(hits, GetParam().questions / 4);
    EXPECT_GT(catches, GetParam().questions / 20);
}

} // namespace
