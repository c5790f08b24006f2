#include "support/foreign_symbol.h"
#include "support/message_boxes.h"
#include "tools/tool_fixture.h"

#include <utility>

namespace {

using support::Dispatch;
using support::MessageBoxes;
using support::Ref;
using support::Value;

class SymbolTool : public tools::ToolTest {
protected:
    Ref<_CSymTool> tool = support::Create<CSymTool, _CSymTool>();

    bool Ready() const {
        VARIANT_BOOL ready = VARIANT_FALSE;
        EXPECT_OK(tool->get_Ready(&ready));
        return ready != VARIANT_FALSE;
    }
    LONG Count() const {
        LONG count = -1;
        EXPECT_OK(tool->get_SymRefCount(&count));
        return count;
    }
};

TEST_F(SymbolTool, StartsEmpty) {
    EXPECT_FALSE(Ready());
    EXPECT_EQ(Count(), 0);
    const Dispatch late = Dispatch::Create(L"QSymbol.CSymTool");
    EXPECT_FALSE(late.Get(L"Ready").value.Bool());
    EXPECT_EQ(late.Get(L"SymRefCount").value.Long(), 0);
    EXPECT_TRUE(FAILED(late.Put(L"Ready", true).status));
}

/// The symbol object is shared with the caller: a change of it shows in the tool.
TEST_F(SymbolTool, SharesTheSymbolsOfItsReferences) {
    const Ref<_CSymbol> symbol = tools::EverySort();
    EXPECT_OK(tool->AddSymref(1, 0, 0, 0.25, symbol.Get()));
    EXPECT_OK(symbol->CreateNew(
        0, 0, 10, 10, support::NewElements({{.type = symPoly, .points = {{0, 0}, {300, 300}}}}).Get()));
    EXPECT_OK(tool->MouseDown(50, 60, box.Get(), trans.Get()));
    EXPECT_OK(tool->Draw(box.Get(), trans.Get()));
    DrawPlainly(symbol, view.offsetX + 500, view.offsetY + 600, 0.25);
    ExpectSame();
}

TEST_F(SymbolTool, ASecondReferenceOfAnObjectIsRefusedAndReleased) {
    EXPECT_OK(tool->AddSymref(7, 0, 0, 0, support::NewSymbol().Get()));
    EXPECT_EQ(support::Outcome(tool->AddSymref(7, 1, 1, 1, support::NewSymbol().Get())),
              support::RunTimeError(457));
    EXPECT_EQ(Dispatch(tool).Call(L"AddSymref", {7, 1, 1, 1.0, support::NewSymbol()}).failure,
              support::RunTimeError(457));
    EXPECT_EQ(Count(), 1);
}

TEST_F(SymbolTool, SymbolsOfTheHostsOwnDrawThemselves) {
    const Ref<support::ForeignSymbol> foreign = support::ForeignSymbol::Create(L"Fremd");
    EXPECT_OK(tool->AddSymref(1, 100, 0, 0.5, foreign.Get()));
    EXPECT_OK(tool->MouseDownReal(1000, 2000, box.Get(), trans.Get(), nullptr));
    EXPECT_OK(tool->Draw(box.Get(), trans.Get()));
    ASSERT_EQ(foreign->Draws().size(), 1U);
    EXPECT_EQ(foreign->Draws()[0].x, 1100);
    EXPECT_EQ(foreign->Draws()[0].y, 2000);
    EXPECT_EQ(foreign->Draws()[0].angle, 0.5);
    EXPECT_EQ(foreign->Draws()[0].mode, R2_COPYPEN);
    foreign->RefuseQuestions({support::Numbered(70), L"Fremd", L"Kein Zugriff"});
    EXPECT_EQ(support::Outcome(tool->AddSymref(2, 0, 0, 0, foreign.Get())),
              (support::Failure{support::Numbered(70), L"Fremd", L"Kein Zugriff"}));
    EXPECT_EQ(Count(), 1);
}

/// An argument left out is not relative; named, by variable and by value it counts.
TEST_F(SymbolTool, FixesAbsolutelyUnlessToldOtherwise) {
    const auto fixedAt = [&](const std::vector<Value>& more, const std::vector<support::Named>& named = {}) {
        const Dispatch late = Dispatch::Create(L"QSymbol.CSymTool");
        EXPECT_OK(late.Call(L"AddSymref", {1, 0, 0, 0.0, Value::Nothing()}).status);
        EXPECT_OK(late.Call(L"SetMoveStartPos", {1000, 2000}).status);
        std::vector<Value> arguments{5, 6, box, trans};
        arguments.insert(arguments.end(), more.begin(), more.end());
        EXPECT_OK(late.Call(L"MouseDownReal", arguments, named).status);
        EXPECT_TRUE(late.Get(L"Ready").value.Bool());
        Value x;
        Value y;
        Value angle;
        EXPECT_OK(late.Call(L"GetSymrefDataById",
                            {1, Value::Variable(x), Value::Variable(y), Value::Variable(angle)})
                      .status);
        return POINT{x.Long(), y.Long()};
    };
    VARIANT_BOOL yes = VARIANT_TRUE;
    Value variable(true);
    EXPECT_EQ(fixedAt({}), (POINT{5, 6}));
    EXPECT_EQ(fixedAt({Value::Omitted()}), (POINT{5, 6}));
    EXPECT_EQ(fixedAt({false}), (POINT{5, 6}));
    EXPECT_EQ(fixedAt({true}), (POINT{1005, 2006}));
    EXPECT_EQ(fixedAt({1}), (POINT{1005, 2006}));
    EXPECT_EQ(fixedAt({Value::Flag(yes)}), (POINT{1005, 2006}));
    EXPECT_EQ(fixedAt({Value::Variable(variable)}), (POINT{1005, 2006}));
    EXPECT_EQ(fixedAt({}, {{L"bSymRelativ", true}}), (POINT{1005, 2006}));
}

/// By-reference arguments of a query before there is a place keep what they hold.
TEST_F(SymbolTool, QueriesBeforeTheFirstPlaceTouchNothing) {
    EXPECT_OK(tool->AddSymref(7, 0, 0, 0, nullptr));
    LONG id = 1;
    LONG x = 2;
    LONG y = 3;
    double angle = 4;
    EXPECT_OK(tool->GetSymrefDataByPos(1, &id, &x, &y, &angle));
    EXPECT_OK(tool->GetSymrefDataById(7, &x, &y, &angle));
    EXPECT_OK(Dispatch(tool)
                  .Call(L"GetSymrefDataByPos", {1, Value::Variable(id), Value::Variable(x),
                                                Value::Variable(y), Value::Variable(angle)})
                  .status);
    EXPECT_EQ(id, 1);
    EXPECT_EQ(x, 2);
    EXPECT_EQ(y, 3);
    EXPECT_EQ(angle, 4);
}

TEST_F(SymbolTool, AFailedQueryTouchesNothing) {
    EXPECT_OK(tool->AddSymref(7, 0x7FFFFFFF, 0, 0, nullptr));
    EXPECT_OK(tool->MouseDownReal(1, 2, nullptr, nullptr, nullptr));
    LONG id = 1;
    LONG x = 2;
    LONG y = 3;
    double angle = 4;
    EXPECT_EQ(support::Outcome(tool->GetSymrefDataById(7, &x, &y, &angle)), support::RunTimeError(6));
    EXPECT_EQ(support::Outcome(tool->GetSymrefDataByPos(1, &id, &x, &y, &angle)), support::RunTimeError(6));
    EXPECT_EQ(support::Outcome(tool->GetSymrefDataByPos(2, &id, &x, &y, &angle)), support::RunTimeError(91));
    EXPECT_EQ(id, 1);
    EXPECT_EQ(x, 2);
    EXPECT_EQ(y, 3);
    EXPECT_EQ(angle, 4);
    EXPECT_OK(tool->AddSymref(8, 0, 0, 0, nullptr));
    EXPECT_EQ(tool->GetSymrefDataById(8, nullptr, &y, &angle), E_POINTER);
    EXPECT_EQ(y, 3);
    EXPECT_EQ(tool->GetObjIdByPos(1, nullptr), E_POINTER);
}

TEST_F(SymbolTool, NothingForSurfaceOrTransformationIsToldWhereItIsNeeded) {
    EXPECT_OK(tool->AddSymref(7, 0, 0, 0, tools::LinesOnly().Get()));
    EXPECT_OK(tool->Draw(nullptr, nullptr));
    EXPECT_OK(tool->KeyUp(107, 0, nullptr, nullptr));
    const MessageBoxes boxes{IDOK, IDOK, IDOK, IDOK};
    EXPECT_OK(tool->MouseMove(1, 1, box.Get(), nullptr));
    EXPECT_OK(tool->MouseMove(1, 1, box.Get(), trans.Get()));
    EXPECT_OK(tool->KeyUp(107, 0, nullptr, trans.Get()));
    EXPECT_OK(tool->MouseDown(1, 1, nullptr, trans.Get()));
    EXPECT_OK(tool->MouseDownReal(1, 1, box.Get(), nullptr, nullptr));
    EXPECT_FALSE(Ready());
    const std::wstring text = L"\r\n" + support::RunTimeError(91).description;
    ASSERT_EQ(boxes.Seen().size(), 4U);
    EXPECT_EQ(boxes.Seen()[0], support::ErrorBox(L"CSymTool.MouseMove" + text));
    EXPECT_EQ(boxes.Seen()[1], support::ErrorBox(L"CSymTool.KeyUp" + text));
    EXPECT_EQ(boxes.Seen()[2], support::ErrorBox(L"CSymTool.MouseDown" + text));
    EXPECT_EQ(boxes.Seen()[3], support::ErrorBox(L"CSymTool.MouseDown" + text));
    EXPECT_EQ(box->Property(L"DrawMode"), R2_COPYPEN);
}

/// A host's control may add references or go on with events while the group is drawn on it.
TEST_F(SymbolTool, TheHostMayCallFromInsideADraw) {
    const Ref<_CSymbol> symbol = tools::LinesOnly();
    EXPECT_OK(tool->AddSymref(1, 0, 0, 0, symbol.Get()));
    bool called = false;
    box->OnAccess([&](const std::string& access) {
        if (access != "put ForeColor 0" || std::exchange(called, true))
            return;
        for (LONG id = 2; id < 50; ++id)
            EXPECT_OK(tool->AddSymref(id, id * 10, 0, 0, symbol.Get()));
    });
    EXPECT_OK(tool->MouseMove(10, 10, box.Get(), trans.Get()));
    EXPECT_TRUE(called);
    EXPECT_EQ(Count(), 49);
    EXPECT_OK(tool->MouseDown(20, 20, box.Get(), trans.Get()));
    EXPECT_TRUE(BackgroundIsUntouched());
}

/// Any number of references is no matter: each stands where it belongs.
TEST_F(SymbolTool, HoldsManyReferences) {
    constexpr LONG kMany = 2000;
    for (LONG id = 0; id < kMany; ++id)
        ASSERT_OK(tool->AddSymref(-id, id, 0, 0, nullptr));
    EXPECT_OK(tool->MouseDownReal(100, 200, box.Get(), trans.Get(), nullptr));
    LONG x = 0;
    LONG y = 0;
    double angle = 0;
    EXPECT_OK(tool->GetSymrefDataById(1 - kMany, &x, &y, &angle));
    EXPECT_EQ(x, 100 + kMany - 1);
}

} // namespace
