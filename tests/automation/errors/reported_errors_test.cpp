#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/shapes.h"
#include "support/text.h"

namespace {

using support::Answer;
using support::Dispatch;
using support::Failure;
using support::Outcome;
using support::Ref;
using support::RunTimeError;
using support::Value;

class ReportedErrors : public support::AutomationTest {};

/// The same failure through the vtable and by name.
TEST_F(ReportedErrors, AreTheSameOnBothRoads) {
    const Ref<_CSymElementColl> elements = support::NewElements({});
    EXPECT_EQ(Outcome(elements->RemoveOnPos(1)), RunTimeError(5));
    const Answer late = Dispatch(elements).Call(L"RemoveOnPos", {1});
    EXPECT_EQ(late.status, DISP_E_EXCEPTION);
    EXPECT_EQ(late.failure, RunTimeError(5));

    const Ref<_CPtList> list = support::NewPtList({});
    Ref<_CPt> pt;
    EXPECT_EQ(Outcome(list->get_Item(1, pt.Put())), RunTimeError(9, L"QMath"));
    EXPECT_EQ(Dispatch(list).Get(L"Item", {1}).failure, RunTimeError(9, L"QMath"));

    const Ref<_CSymbol> symbol = support::NewSymbol();
    EXPECT_EQ(Outcome(symbol->ReadFromFile()), support::LibraryError(3501, L"CSymbol.ReadFromFile"));
    EXPECT_EQ(Dispatch(symbol).Call(L"ReadFromFile").failure,
              support::LibraryError(3501, L"CSymbol.ReadFromFile"));
}

TEST_F(ReportedErrors, ASuccessLeavesNoErrorBehind) {
    const Ref<_CSymElementColl> elements = support::NewElements({});
    EXPECT_TRUE(FAILED(Dispatch(elements).Call(L"RemoveOnPos", {1}).status));
    const Answer answer = Dispatch(elements).Get(L"Count");
    EXPECT_OK(answer.status);
    EXPECT_EQ(answer.failure, Failure{});
}

TEST_F(ReportedErrors, AMissingPlaceForAResultIsToldToo) {
    const Ref<_CPt> pt = support::NewPt(0, 0);
    const Failure failure = Outcome(pt->get_X(nullptr));
    EXPECT_EQ(failure.status, E_POINTER);
    EXPECT_EQ(failure.source, L"QMath");
    EXPECT_NE(failure.description, L"");
}

TEST_F(ReportedErrors, LeaveNothingWhereAResultWasToCome) {
    const Ref<_CPtList> list = support::NewPtList({});
    auto* pt = reinterpret_cast<_CPt*>(list.Get()); // as uninitialised as a variable can be
    EXPECT_EQ(list->get_Item(1, &pt), support::Numbered(9));
    EXPECT_EQ(pt, nullptr);
    VARIANT_BOOL hit = VARIANT_TRUE;
    const Ref<_CSymbol> symbol =
        support::NewSymbol(0, 0, 9, 9, {{.type = symPoly, .points = {{0, 0}, {1, 1}}}});
    EXPECT_EQ(symbol->ObjIdentByPt(0, 0, 0, nullptr, 0, 0, &hit), support::Numbered(91));
    EXPECT_EQ(hit, VARIANT_FALSE);

    constexpr DISPID kUnknown = 12345;
    for (const DISPID id : {DISPID{DISPID_VALUE}, kUnknown}) {
        for (const IID& reserved : {IID_NULL, IID_IDispatch}) {
            VARIANT result;
            V_VT(&result) = VT_BSTR;
            V_BSTR(&result) = reinterpret_cast<BSTR>(list.Get());
            VARIANTARG first;
            V_VT(&first) = VT_I4;
            V_I4(&first) = 1;
            DISPPARAMS arguments{&first, nullptr, 1, 0};
            EXPECT_TRUE(FAILED(
                list->Invoke(id, reserved, 0, DISPATCH_PROPERTYGET, &arguments, &result, nullptr, nullptr)));
            EXPECT_EQ(V_VT(&result), VT_EMPTY);
        }
    }
}

/// Also with the least that it can be called with.
class EveryMember : public support::AutomationTest {
protected:
    static void ExpectWorks(const Dispatch& object, const wchar_t* member,
                            const std::vector<Value>& arguments) {
        EXPECT_OK(object.CallOrGet(member, arguments).status) << support::Narrow(member);
    }
};

TEST_F(EveryMember, OfASymbol) {
    const Dispatch symbol(support::NewSymbol(0, 0, 10, 10, {{.type = symPoly, .points = {{0, 0}, {1, 1}}}}));
    const Value trans = support::NewTrans();
    const Value rect = support::Create<CRect, _CRect>();
    float x = 0;
    float y = 0;
    LONG worldX = 0;
    LONG worldY = 0;
    ExpectWorks(symbol, L"DxfExport", {0, 0, 0.0});
    ExpectWorks(symbol, L"CatchPt",
                {Value::Variable(x), Value::Variable(y), Value::Variable(worldX), Value::Variable(worldY), 0,
                 0, 0.0, trans, 5});
    ExpectWorks(symbol, L"GetBoundingRect", {0, 0, 0.0, rect});
    ExpectWorks(symbol, L"ObjIdentByPt", {0, 0, 0.0, trans, 0, 0});
    ExpectWorks(symbol, L"ObjIdentByRect", {0, 0, 0.0, trans, rect});
    ExpectWorks(symbol, L"GetColor2ColNr", {1, true});
}

TEST_F(EveryMember, OfAnElementCollection) {
    const Dispatch elements(support::NewElements({}));
    const Value trans = support::NewTrans();
    Value rect = support::Create<CRect, _CRect>();
    Value element = Value::Nothing();
    Value pt = Value::Nothing();
    ExpectWorks(elements, L"Draw", {Value::Nothing(), trans});
    ExpectWorks(elements, L"DrawTracker", {Value::Nothing(), trans});
    ExpectWorks(elements, L"ObjIdentByPt", {trans, 0, 0});
    ExpectWorks(elements, L"ObjIdentByRect", {trans, Value::Variable(rect)});
    ExpectWorks(elements, L"PtIdent", {trans, 0, 0, Value::Variable(element), Value::Variable(pt)});
    const Dispatch single(support::NewElement({}));
    ExpectWorks(single, L"Draw", {Value::Nothing(), trans});
    ExpectWorks(single, L"DrawTracker", {Value::Nothing(), trans});
}

TEST_F(EveryMember, OfACatalogueAndATool) {
    const Dispatch symbols = Dispatch::Create(L"QSymbol.CSymbolColl");
    ExpectWorks(symbols, L"GetSymInput", {L"fehlt"});
    const Dispatch tool = Dispatch::Create(L"QSymbol.CSymTool");
    const Value trans = support::NewTrans();
    ExpectWorks(tool, L"Ready", {});
    ExpectWorks(tool, L"SymRefCount", {});
    ExpectWorks(tool, L"AddSymref", {1, 2, 3, 0.5, support::NewSymbol()});
    ExpectWorks(tool, L"SetMoveStartPos", {1, 2});
    ExpectWorks(tool, L"Draw", {Value::Nothing(), trans});
}

} // namespace
