#include "plan/plan_fixture.h"
#include "support/handle_count.h"
#include "support/servers.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <functional>

/// Hosts that do something while a plan asks their objects or draws on them.

namespace {

using namespace plan;
using support::Outcome;
using testing::ElementsAre;

struct Road {
    const char* name;
    std::function<HRESULT(_CPlan*, IDispatch*, _CTrans*)> call;
};

void PrintTo(const Road& road, std::ostream* out) {
    *out << road.name;
}

const Road kRoads[] = {
    {"Draw", [](_CPlan* plan, IDispatch* box, _CTrans* trans) { return plan->Draw(box, trans); }},
    {"HitTest",
     [](_CPlan* plan, IDispatch*, _CTrans* trans) {
         Ref<_CPlacement> hit;
         return plan->HitTest(trans, 500, 500, hit.Put());
     }},
    {"HitRect",
     [](_CPlan* plan, IDispatch*, _CTrans* trans) {
         Ref<_CPlacementColl> hits;
         return plan->HitRect(trans, NewRect({0, 0, 50, 50}).Get(), hits.Put());
     }},
    {"CatchPt",
     [](_CPlan* plan, IDispatch*, _CTrans* trans) {
         float at[2] = {1, 2};
         LONG world[2] = {};
         VARIANT_BOOL caught = VARIANT_FALSE;
         return plan->CatchPt(&at[0], &at[1], &world[0], &world[1], trans, 5, &caught);
     }},
    {"Extent",
     [](_CPlan* plan, IDispatch*, _CTrans*) {
         Ref<_CRect> rect;
         VARIANT_BOOL has = VARIANT_FALSE;
         return plan->Extent(rect.InOut(), &has);
     }},
};

class PlanCalls : public PlanTest, public testing::WithParamInterface<Road> {
protected:
    PlanCalls() {
        host_->symbols[L"H"] = Ref<_CSymbol>(symbol.Get());
        for (const wchar_t* name : {L"A", L"B", L"C"})
            host_->symbols[name] = symbols[name[0] - L'A'];
        EXPECT_OK(plan->putref_Symbols(host_.Get()));
        for (const wchar_t* name : {L"A", L"H", L"B", L"H", L"C"})
            Add(name, 300, 300);
    }
    ~PlanCalls() override { symbol->OnCall(nullptr); }
    HRESULT Call() const { return GetParam().call(plan.Get(), box.Get(), trans.Get()); }

    Ref<HostSymbol> symbol = HostSymbol::Create(NewPlanSymbol(0));
    support::Canvas canvas;
    Ref<support::PictureBox> box = support::PictureBox::Create(canvas);
    Ref<_CTrans> trans = support::NewTrans(10);

private:
    Ref<HostCatalogue> host_ = HostCatalogue::Create();
};

INSTANTIATE_TEST_SUITE_P(Roads, PlanCalls, testing::ValuesIn(kRoads),
                         [](const auto& tested) { return tested.param.name; });

TEST_P(PlanCalls, ErrorsOfASymbolPassThrough) {
    const support::Failure failure{support::Numbered(4711), L"Wirt.Symbol", L"Heute nicht"};
    symbol->Fail(failure);
    EXPECT_EQ(Outcome(Call()), failure);
    symbol->Fail({});
    EXPECT_OK(Call());
}

TEST_P(PlanCalls, ASymbolMayChangeThePlanMeanwhile) {
    const std::function<void()> kChanges[] = {[&] { EXPECT_OK(plan->Clear()); },
                                              [&] { plan->RemoveById(Ids().empty() ? 1 : Ids().back()); },
                                              [&] { Add(L"A", 100, 100); },
                                              [&] {
                                                  for (const LONG id : Ids())
                                                      EXPECT_OK(ById(id)->put_LogX(90000));
                                              },
                                              [&] { EXPECT_OK(symbols[0]->CreateNew(0, 0, 1, 1, nullptr)); },
                                              [&] { EXPECT_OK(plan->putref_Symbols(nullptr)); },
                                              [&] { HitTest(trans.Get(), 1, 1); }};
    for (const auto& change : kChanges) {
        int calls = 0;
        symbol->OnCall([&] {
            if (++calls == 1)
                change();
        });
        EXPECT_OK(Call());
        EXPECT_GT(calls, 0);
        symbol->OnCall(nullptr);
        EXPECT_OK(Call());
        EXPECT_OK(plan->Clear());
        EXPECT_OK(plan->putref_Symbols(catalogue.Get()));
        const auto host = HostCatalogue::Create();
        host->symbols = {{L"A", symbols[0]}, {L"H", Ref<_CSymbol>(symbol.Get())}};
        EXPECT_OK(plan->putref_Symbols(host.Get()));
        for (const wchar_t* name : {L"A", L"H", L"A", L"H"})
            Add(name, 300, 300);
    }
}

TEST_P(PlanCalls, TheLastReferenceMayGoMeanwhile) {
    _CPlan* const called = plan.Get();
    symbol->OnCall([&] {
        plan.Reset();
        catalogue.Reset();
        symbols.clear();
        trans.Reset();
        box.Reset();
    });
    EXPECT_OK(GetParam().call(called, box.Get(), trans.Get()));
    EXPECT_FALSE(plan);
}

using PlanSurfaces = PlanTest;

TEST_F(PlanSurfaces, MayChangeThePlanWhileItDraws) {
    for (int i = 0; i < 6; ++i)
        Add(L"A", 300 * i, 300);
    support::Canvas canvas;
    const auto box = support::PictureBox::Create(canvas);
    int accesses = 0;
    box->OnAccess([&](const std::string& access) {
        if (access.starts_with("put FillColor") && ++accesses <= 3) {
            EXPECT_OK(symbols[0]->put_Width(10 + accesses)); // what draws at the moment goes on as it is
            HitTest(support::NewTrans(10).Get(), 1, 1);
            EXPECT_OK(plan->RemoveById(Ids().back()));
            Add(L"B", 0, 0);
        }
    });
    EXPECT_OK(plan->Draw(box.Get(), support::NewTrans(10).Get()));
    EXPECT_GE(accesses, 3);
    EXPECT_EQ(Count(), 6);
    box->OnAccess([&](const std::string&) { plan.Reset(); });
    _CPlan* const called = plan.Get();
    EXPECT_OK(called->Draw(box.Get(), support::NewTrans(10).Get()));
    EXPECT_FALSE(plan);
}

TEST_F(PlanSurfaces, ErrorsOfASurfacePassThrough) {
    Add(L"A", 300, 300);
    support::Canvas canvas;
    const auto box = support::PictureBox::Create(canvas);
    const support::Failure failure{support::Numbered(999), L"Wirt", L"Kein Papier"};
    box->Fail("put ForeColor", failure);
    EXPECT_EQ(Outcome(plan->Draw(box.Get(), support::NewTrans(10).Get())), failure);
    box->Heal();
    EXPECT_OK(plan->Draw(box.Get(), support::NewTrans(10).Get()));
}

TEST_F(PlanSurfaces, AHostsSymbolMayChangeBetweenTwoQuestions) {
    const auto host = HostCatalogue::Create();
    host->symbols[L"A"] = Ref<_CSymbol>(HostSymbol::Create(symbols[0]).Get());
    EXPECT_OK(plan->putref_Symbols(host.Get()));
    Add(L"A", 0, 0);
    for (const LONG width : {400, 900, 0}) {
        EXPECT_OK(symbols[0]->put_Width(width));
        Ref<_CRect> extent;
        VARIANT_BOOL has = VARIANT_FALSE;
        EXPECT_OK(plan->Extent(extent.InOut(), &has));
        EXPECT_EQ(Edges(extent.Get())->right, width - 200);
    }
}

/// As after a loop that draws each with both factors 1, whether anything can be seen or not.
TEST_F(PlanSurfaces, LeaveTheFactorsOfADrawing) {
    support::Canvas canvas;
    const auto box = support::PictureBox::Create(canvas);
    const auto right = [&] {
        Ref<_CRect> bounds;
        EXPECT_OK(symbols[2]->GetBoundingRect(0, 0, 0, bounds.InOut()));
        return Edges(bounds.Get())->right;
    };
    EXPECT_OK(symbols[0]->Draw(0, 0, 0, nullptr, nullptr, 1, 3, nullptr));
    EXPECT_OK(plan->Draw(box.Get(), support::NewTrans(10).Get()));
    EXPECT_EQ(right(), 1500) << "nothing was there to draw";
    Add(L"A", 900000, 0);
    EXPECT_OK(plan->Draw(box.Get(), support::NewTrans(10).Get()));
    EXPECT_EQ(right(), 500);
}

TEST_F(PlanSurfaces, AreSparedWhatTheyCannotShow) {
    for (int i = 0; i < 50; ++i)
        Add(L"A", 10000 * i, 300);
    support::Canvas canvas;
    const auto box = support::PictureBox::Create(canvas);
    EXPECT_OK(plan->Draw(box.Get(), support::NewTrans(10).Get()));
    EXPECT_EQ(box->Count("put FillColor 6340848"), 1) << "one of fifty";
}

TEST_F(PlanSurfaces, ACatalogueMayChangeThePlanWhileItIsAsked) {
    const auto host = HostCatalogue::Create();
    host->symbols[L"A"] = symbols[0];
    EXPECT_OK(plan->putref_Symbols(host.Get()));
    host->onFind = [&] { EXPECT_OK(plan->putref_Symbols(nullptr)); };
    Ref<_CPlacement> placed;
    EXPECT_OK(plan->Add(Bstr(L"A"), 0, 0, 0, placed.Put()));
    EXPECT_THAT(Ids(), ElementsAre(1));
    host->onFind = nullptr;
}

TEST_F(PlanSurfaces, SymbolsThatGiveThemselvesForOneOfOursAnswerThemselves) {
    const auto easy = HostSymbol::Create(symbols[0]);
    easy->ClaimToBeAnything();
    const auto hull = HostSymbol::Create(symbols[0]);
    hull->HandQuestionsOnTo(symbols[1].Get());
    const auto host = HostCatalogue::Create();
    host->symbols = {{L"E", Ref<_CSymbol>(easy.Get())}, {L"H", Ref<_CSymbol>(hull.Get())}};
    EXPECT_OK(plan->putref_Symbols(host.Get()));
    Add(L"E", 300, 300);
    Add(L"H", 300, 300);
    support::Canvas canvas;
    const auto box = support::PictureBox::Create(canvas);
    EXPECT_OK(plan->Draw(box.Get(), support::NewTrans(10).Get()));
    EXPECT_EQ(easy->Draws(), 1);
    EXPECT_EQ(hull->Draws(), 1);
    EXPECT_OK(plan->Clear());
    host->symbols.clear();
    hull->HandQuestionsOnTo(nullptr);
}

/// Another copy of the symbol library has factors of its own: its symbols are objects like a host's.
TEST_F(PlanSurfaces, SymbolsOfTwoCopiesOfTheLibraryAnswerAsAlone) {
    const support::TempFolder folder;
    const std::wstring path = folder / L"QSymbol.dll";
    ASSERT_NE(CopyFileW(support::QSymbolServer().Path().c_str(), path.c_str(), TRUE), FALSE);
    const support::Server copy(path);
    Ref<_CSymbol> other;
    ASSERT_OK(copy.Factory(CLSID_CSymbol)->CreateInstance(nullptr, __uuidof(_CSymbol), other.PutVoid()));
    const auto elements = support::NewElements({{.type = symPoly, .points = {{0, 0}, {90, 90}}}});
    EXPECT_OK(other->CreateNew(0, 0, 100, 100, elements.Get()));
    const auto host = HostCatalogue::Create();
    host->symbols = {{L"A", symbols[0]}, {L"D", other}};
    EXPECT_OK(plan->putref_Symbols(host.Get()));
    Add(L"A", 5000, 0);
    Add(L"D", 0, 0);
    EXPECT_OK(symbols[0]->Draw(0, 0, 0, nullptr, nullptr, 1, 0.5, nullptr));
    EXPECT_OK(other->Draw(0, 0, 0, nullptr, nullptr, 1, 3, nullptr));
    const auto trans = support::NewTrans(10);
    EXPECT_EQ(HitTest(trans.Get(), 29, 29), 2) << "three times as large";
    EXPECT_EQ(HitTest(trans.Get(), 515, 0), 0) << "half as large";
    EXPECT_EQ(HitTest(trans.Get(), 508, 0), 1);
    EXPECT_OK(plan->Clear());
    host->symbols.clear();
}

} // namespace
