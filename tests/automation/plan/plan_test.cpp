#include "plan/plan_fixture.h"
#include "support/enumerate.h"
#include "support/temp_folder.h"
#include "support/text.h"

#include <gmock/gmock.h>

#include <limits>

/// CPlan, CPlacement, CPlacementColl: what each member promises.

namespace {

using namespace plan;
using support::Dispatch;
using support::Outcome;
using support::Value;
using testing::ElementsAre;
using testing::IsEmpty;

const RECT kEverything{-1000, -1000, 1000, 1000};

class Plan : public PlanTest {
protected:
    Dispatch Late() const { return Dispatch(plan); }
    Ref<_CTrans> trans = support::NewTrans(10);
};

TEST_F(Plan, HasNothingAtFirst) {
    const Dispatch fresh = Dispatch::Create(L"QPlan.CPlan");
    ASSERT_TRUE(fresh);
    EXPECT_EQ(fresh.Get(L"Symbols").value.Object(), nullptr);
    EXPECT_EQ(fresh.Get(L"Count").value.Long(), 0);
    EXPECT_EQ(fresh.Call(L"Add", {L"A", 0, 0, 0.0}).failure, Error(91));
    for (const Dispatch& empty : {fresh, Late()}) {
        EXPECT_EQ(empty.Get(L"ItemByPos", {1}).value.Object(), nullptr);
        EXPECT_EQ(empty.Get(L"ItemById", {1}).value.Object(), nullptr);
        EXPECT_EQ(empty.Call(L"RemoveById", {1}).failure, Error(5));
        EXPECT_EQ(empty.Call(L"HitTest", {trans, 1, 1}).value.Object(), nullptr);
        EXPECT_EQ(Dispatch(empty.Call(L"HitRect", {trans, NewRect(kEverything)}).value.Object())
                      .Get(L"Count")
                      .value.Long(),
                  0);
        EXPECT_OK(empty.Call(L"Clear").status);
        Value rect = Value::Nothing();
        EXPECT_FALSE(empty.Call(L"Extent", {Value::Variable(rect)}).value.Bool());
        EXPECT_EQ(rect.Object(), nullptr);
        EXPECT_TRUE(support::RestOf(support::EnumeratorOf(empty.Object()).Get()).empty());
    }
    EXPECT_FALSE(CatchPt(trans.Get(), 1, 1, 100).isCaught);
}

TEST_F(Plan, PlacesSymbolsOfTheCatalogue) {
    const Dispatch placed(Late().Call(L"Add", {L"b", 1200, -300, 0.5}).value.Object());
    ASSERT_TRUE(placed);
    EXPECT_EQ(placed.Get(L"Id").value.Long(), 1);
    EXPECT_EQ(placed.Get(L"SymbolName").value.Text(), L"b");
    EXPECT_TRUE(support::SameObject(placed.Get(L"Symbol").value.Object(), symbols[1].Get()));
    EXPECT_EQ(placed.Get(L"LogX").value.Long(), 1200);
    EXPECT_EQ(placed.Get(L"LogY").value.Long(), -300);
    EXPECT_EQ(placed.Get(L"Angle").value.Double(), 0.5);
    EXPECT_TRUE(support::SameObject(Late().Get(L"Symbols").value.Object(), catalogue.Get()));
    EXPECT_EQ(Add(L"A", 0, 0), 2);
    EXPECT_EQ(Dispatch(Late().InvokeId(DISPID_VALUE, DISPATCH_PROPERTYGET, {2}).value.Object())
                  .Get(L"Id")
                  .value.Long(),
              2);
    for (const LONG position : {0L, -1L, 3L})
        EXPECT_EQ(Late().Get(L"ItemByPos", {position}).value.Object(), nullptr) << position;
    const Value nan(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(Late().Call(L"Add", {L"D", 0, 0, 0.0}).failure, Error(5));
    EXPECT_EQ(Late().Call(L"Add", {L"", 0, 0, 0.0}).failure, Error(5));
    EXPECT_EQ(Late().Call(L"Add", {L"A", 0, 0, nan}).failure, Error(5));
    EXPECT_EQ(placed.Put(L"Angle", nan).failure, Error(5));
    EXPECT_THAT(Ids(), ElementsAre(1, 2));
}

TEST_F(Plan, NeverUsesAnIdAgain) {
    EXPECT_EQ(Add(L"A", 0, 0), 1);
    EXPECT_EQ(Add(L"A", 0, 0), 2);
    EXPECT_OK(plan->RemoveById(2));
    EXPECT_EQ(Outcome(plan->RemoveById(2)), Error(5));
    EXPECT_EQ(Add(L"A", 0, 0), 3);
    EXPECT_OK(plan->Clear());
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Add(L"B", 0, 0), 4);
    EXPECT_THAT(Ids(), ElementsAre(4));
}

TEST_F(Plan, SeesWhereAPlacementIs) {
    const Dispatch moved(Late().Call(L"Add", {L"A", 0, 0, 0.0}).value.Object());
    EXPECT_EQ(HitTest(trans.Get(), 0, 0), 1);
    EXPECT_OK(moved.Put(L"LogX", 5000).status);
    EXPECT_OK(moved.Put(L"LogY", 700).status);
    EXPECT_EQ(HitTest(trans.Get(), 0, 0), 0);
    EXPECT_EQ(HitTest(trans.Get(), 500, 70), 1);
    EXPECT_EQ(HitTest(trans.Get(), 500, 88), 0);
    EXPECT_OK(moved.Put(L"Angle", 1.5707963).status);
    EXPECT_EQ(HitTest(trans.Get(), 500, 88), 1);
    EXPECT_OK(plan->RemoveById(1));
    EXPECT_EQ(moved.Get(L"Id").value.Long(), 1);
    for (const wchar_t* name : {L"SymbolName", L"Symbol", L"LogX", L"LogY", L"Angle"})
        EXPECT_EQ(moved.Get(name).failure, Error(91)) << support::Narrow(name);
    EXPECT_EQ(moved.Put(L"LogX", 1).failure, Error(91));
}

TEST_F(Plan, SeesWhatASymbolBecomes) {
    Add(L"A", 0, 0);
    EXPECT_EQ(HitTest(trans.Get(), 30, 0), 0);
    EXPECT_OK(symbols[0]->put_Width(600));
    EXPECT_EQ(HitTest(trans.Get(), 30, 0), 1);
    const auto elements = support::NewElements({{.type = symPoly, .points = {{0, 0}, {0, 9000}}}});
    EXPECT_OK(symbols[0]->CreateNew(0, 0, 100, 9000, elements.Get()));
    EXPECT_EQ(HitTest(trans.Get(), 5, 800), 1);
    EXPECT_EQ(CatchPt(trans.Get(), 1, 898, 5), (Caught{true, 0, 900, 0, 9000}));
    const support::TempFolder folder;
    const Ref<_CSymbol> other = NewPlanSymbol(0);
    EXPECT_OK(other->put_FilePath(Bstr(folder / L"a.syb")));
    EXPECT_OK(other->Write2File());
    EXPECT_OK(symbols[0]->put_FilePath(Bstr(folder / L"a.syb")));
    EXPECT_OK(symbols[0]->ReadFromFile());
    EXPECT_EQ(HitTest(trans.Get(), 5, 800), 0);
    EXPECT_EQ(HitTest(trans.Get(), 15, 10), 1);
}

TEST_F(Plan, LooksNamesUpInAnotherCatalogue) {
    Add(L"A", 0, 0);
    const auto other = support::Create<CSymbolColl, _CSymbolColl>();
    EXPECT_EQ(Outcome(plan->putref_Symbols(other.Get())), Error(5));
    EXPECT_TRUE(support::SameObject(Late().Get(L"Symbols").value.Object(), catalogue.Get()));
    EXPECT_EQ(HitTest(trans.Get(), 0, 0), 1);
    Ref<_CSymbol> large =
        support::NewSymbol(0, 0, 5000, 5000, {{.type = symCircle, .points = {{0, 0}}, .radius = 9}});
    EXPECT_OK(large->put_FilePath(Bstr(L"a.syb")));
    EXPECT_OK(other->AppendRef(large.InOut()));
    EXPECT_OK(Late().PutRef(L"Symbols", other).status);
    EXPECT_EQ(HitTest(trans.Get(), 400, 400), 1);
    EXPECT_OK(plan->putref_Symbols(nullptr));
    EXPECT_EQ(Late().Get(L"Symbols").value.Object(), nullptr);
    EXPECT_EQ(Late().Call(L"Add", {L"A", 0, 0, 0.0}).failure, Error(91));
    EXPECT_EQ(HitTest(trans.Get(), 400, 400), 1) << "what is placed keeps its symbol";
    EXPECT_OK(other->Clear());
    EXPECT_EQ(HitTest(trans.Get(), 400, 400), 1);
}

TEST_F(Plan, CanBeWalkedThroughWhileItChanges) {
    for (int i = 0; i < 5; ++i)
        Add(L"A", i * 100, 0);
    const auto walk = support::EnumeratorOf(plan.Get());
    EXPECT_EQ(IdOf(support::NextOf(walk.Get()).As<_CPlacement>().Get()), 1);
    for (const LONG id : {1L, 2L, 4L})
        EXPECT_OK(plan->RemoveById(id));
    Add(L"B", 0, 0);
    EXPECT_EQ(IdOf(support::NextOf(walk.Get()).As<_CPlacement>().Get()), 3);
    plan.Reset(); // the walk holds it
    EXPECT_THAT(support::RestOf(walk.Get()), testing::SizeIs(2));
}

TEST_F(Plan, FindsWhatLiesUnderAPixelOrARectangle) {
    Add(L"A", 0, 0);
    Add(L"B", 100, 0);
    Add(L"A", 50, 50);
    Add(L"A", 90000, 0);
    EXPECT_EQ(HitTest(trans.Get(), 5, 5), 3) << "the topmost";
    EXPECT_THAT(HitRect(trans.Get(), {0, 0, 10, 10}), ElementsAre(1, 2, 3));
    const Dispatch found(Late().Call(L"HitRect", {trans, NewRect({0, 0, 10, 10})}).value.Object());
    EXPECT_OK(plan->RemoveById(2));
    EXPECT_EQ(found.Get(L"Count").value.Long(), 3) << "what was found";
    EXPECT_EQ(Dispatch(found.Get(L"ItemByPos", {2}).value.Object()).Get(L"LogX").failure, Error(91));
    EXPECT_EQ(found.Get(L"ItemByPos", {0}).value.Object(), nullptr);
    EXPECT_EQ(found.Get(L"ItemByPos", {4}).value.Object(), nullptr);
    EXPECT_EQ(support::RestOf(support::EnumeratorOf(found.Object()).Get()).size(), 3U);
    EXPECT_EQ(Late().Call(L"HitTest", {Value::Nothing(), 1, 1}).failure, Error(91));
    EXPECT_EQ(Late().Call(L"HitRect", {Value::Nothing(), NewRect({0, 0, 1, 1})}).failure, Error(91));
    EXPECT_EQ(Late().Call(L"HitRect", {trans, Value::Nothing()}).failure, Error(91));
}

TEST_F(Plan, SnapsToTheNearestPoint) {
    Add(L"A", 200, 150); // corners at 0, 0 and 400, 300
    Add(L"A", 260, 150);
    EXPECT_EQ(CatchPt(trans.Get(), 2, 0, 9), (Caught{true, 0, 0, 0, 0}))
        << "not the first one's, the nearer one";
    EXPECT_EQ(CatchPt(trans.Get(), 5, 0, 9), (Caught{true, 6, 0, 60, 0}));
    EXPECT_EQ(CatchPt(trans.Get(), 3, 0, 9), (Caught{true, 6, 0, 60, 0})) << "of equal ones the topmost's";
    EXPECT_EQ(CatchPt(trans.Get(), 80, 80, 9), (Caught{false, 80, 80, -1, -2}));
    Value x = 5.0f, y = 0.0f, worldX = 0, worldY = 0;
    const auto answer =
        Late().Call(L"CatchPt", {Value::Variable(x), Value::Variable(y), Value::Variable(worldX),
                                 Value::Variable(worldY), trans, static_cast<SHORT>(9)});
    EXPECT_TRUE(answer.value.Bool());
    EXPECT_EQ(x.Single(), 6);
    EXPECT_EQ(worldX.Long(), 60);
    EXPECT_EQ(Late().Call(L"CatchPt", {1.0f, 1.0f, 1, 1, Value::Nothing(), static_cast<SHORT>(9)}).failure,
              Error(91));
}

TEST_F(Plan, TellsHowFarItReaches) {
    Add(L"A", 0, 0);
    Add(L"C", 10000, -50);
    Ref<_CRect> extent = NewRect({1, 2, 3, 4});
    const Ref<_CRect> given = extent;
    VARIANT_BOOL has = VARIANT_FALSE;
    EXPECT_OK(plan->Extent(extent.InOut(), &has));
    EXPECT_EQ(has, VARIANT_TRUE);
    const RECT edges = *Edges(extent.Get());
    EXPECT_EQ(edges.left, -200);
    EXPECT_EQ(edges.top, -150);
    EXPECT_EQ(edges.right, 10500);
    EXPECT_EQ(edges.bottom, 150);
    EXPECT_TRUE(support::SameObject(extent.Get(), given.Get())) << "for callers that pass values only";
    Ref<_CRect> made;
    EXPECT_OK(plan->Extent(made.InOut(), &has));
    EXPECT_EQ(Edges(made.Get())->right, 10500);
    EXPECT_OK(plan->Clear());
    EXPECT_OK(plan->Extent(extent.InOut(), &has));
    EXPECT_EQ(has, VARIANT_FALSE);
    EXPECT_EQ(Edges(extent.Get())->left, -200) << "left alone";
}

TEST_F(Plan, DrawsNothingOnNothing) {
    Add(L"A", 0, 0);
    support::Canvas canvas;
    const auto box = support::PictureBox::Create(canvas);
    EXPECT_OK(plan->Draw(nullptr, trans.Get()));
    EXPECT_OK(Late().Call(L"Draw", {box, Value::Nothing()}).status);
    EXPECT_FALSE(support::IsDrawnOn(canvas));
    EXPECT_THAT(box->Log(), IsEmpty());
}

} // namespace
