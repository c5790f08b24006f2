#include "support/foreign_symbol.h"
#include "support/message_boxes.h"
#include "tools/tool_fixture.h"

namespace {

using support::Bstr;
using support::Dispatch;
using support::MessageBoxes;
using support::Ref;
using support::Value;

class SymbolInput : public tools::ToolTest {
protected:
    Ref<_CSymbolColl> catalogue = support::Create<CSymbolColl, _CSymbolColl>();

    void Add(Ref<_CSymbol> symbol, const wchar_t* path) const {
        EXPECT_OK(symbol->put_FilePath(Bstr(path)));
        EXPECT_OK(catalogue->AppendRef(symbol.InOut()));
    }
    Ref<_CSymInput> Input(const wchar_t* name) const {
        Ref<_CSymInput> input;
        EXPECT_OK(catalogue->GetSymInput(Bstr(name), input.Put()));
        return input;
    }
};

TEST_F(SymbolInput, ComesFromACatalogueOnly) {
    Ref<IUnknown> object;
    EXPECT_EQ(
        CoCreateInstance(__uuidof(CSymInput), nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, object.PutVoid()),
        REGDB_E_CLASSNOTREG);
}

TEST_F(SymbolInput, AnUnknownNameIsNothingWithoutAMessage) {
    const MessageBoxes boxes;
    EXPECT_FALSE(Input(L"Bett"));
    EXPECT_FALSE(Input(L""));
    Add(support::NewSymbol(), L"C:\\Katalog\\Bett.syb");
    EXPECT_FALSE(Input(L"Bet"));
    EXPECT_FALSE(Input(L"Bett$"));
    EXPECT_TRUE(Dispatch(catalogue).Call(L"GetSymInput", {L"Tisch"}).value.Object() == nullptr);
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_F(SymbolInput, NamesAreFoundInAnyCase) {
    Add(support::NewSymbol(), L"C:\\Katalog\\Öltank.syb");
    EXPECT_TRUE(Input(L"ÖLTANK"));
    EXPECT_TRUE(Dispatch(catalogue).Call(L"GetSymInput", {L"öltank"}).value.Object() != nullptr);
}

TEST_F(SymbolInput, StartsWithoutAPlaceAndNotTurned) {
    Add(support::NewSymbol(), L"C:\\Katalog\\Bett.syb");
    const Dispatch input(Input(L"Bett"));
    EXPECT_EQ(input.Get(L"PosX").value.Long(), -1);
    EXPECT_EQ(input.Get(L"PosY").value.Long(), -1);
    EXPECT_EQ(input.Get(L"Angle").value.Double(), 0.0);
    EXPECT_FALSE(input.Get(L"Ready").value.Bool());
    EXPECT_TRUE(FAILED(input.Put(L"PosX", 5).status));
    EXPECT_TRUE(FAILED(input.Put(L"Ready", true).status));
}

TEST_F(SymbolInput, EachIsForItself) {
    Add(tools::LinesOnly(), L"C:\\Katalog\\Bett.syb");
    const Ref<_CSymInput> one = Input(L"Bett");
    const Ref<_CSymInput> two = Input(L"Bett");
    EXPECT_FALSE(support::SameObject(one.Get(), two.Get()));
    EXPECT_OK(one->MouseDown(10, 10, box.Get(), trans.Get()));
    VARIANT_BOOL ready = VARIANT_TRUE;
    EXPECT_OK(two->get_Ready(&ready));
    EXPECT_EQ(ready, VARIANT_FALSE);
}

/// The tool holds its symbol, not the catalogue; and it shares it, so a change shows.
TEST_F(SymbolInput, SharesTheCataloguesSymbol) {
    const Ref<_CSymbol> symbol = tools::LinesOnly();
    Add(symbol, L"C:\\Katalog\\Bett.syb");
    const Ref<_CSymInput> input = Input(L"Bett");
    EXPECT_OK(catalogue->Clear());
    catalogue.Reset();
    EXPECT_OK(symbol->CreateNew(
        0, 0, 10, 10, support::NewElements({{.type = symPoly, .points = {{0, 0}, {300, 300}}}}).Get()));
    EXPECT_OK(input->MouseDown(50, 60, box.Get(), trans.Get()));
    StartAgain();
    EXPECT_OK(input->Draw(box.Get(), trans.Get()));
    DrawPlainly(symbol, view.offsetX + 500, view.offsetY + 600, 0);
    ExpectSame();
}

TEST_F(SymbolInput, ASymbolOfTheHostsOwnDrawsItself) {
    const Ref<support::ForeignSymbol> foreign = support::ForeignSymbol::Create(L"Fremd");
    Ref<_CSymbol> handed(foreign.Get());
    EXPECT_OK(catalogue->AppendRef(handed.InOut()));
    const Ref<_CSymInput> input = Input(L"Fremd");
    ASSERT_TRUE(input);
    EXPECT_OK(input->KeyUp(36, 0, box.Get(), trans.Get()));
    EXPECT_OK(input->MouseMove(50, 60, box.Get(), trans.Get()));
    ASSERT_EQ(foreign->Draws().size(), 1U);
    const support::ForeignDraw& draw = foreign->Draws()[0];
    EXPECT_EQ(draw.x, view.offsetX + 500);
    EXPECT_EQ(draw.y, view.offsetY + 600);
    EXPECT_DOUBLE_EQ(draw.angle, 3.14159265358979323846 / 2);
    EXPECT_EQ(draw.control, box.Get());
    EXPECT_EQ(draw.trans, trans.Get());
    EXPECT_EQ(draw.printerFactor, 1);
    EXPECT_EQ(draw.screenFactor, 1);
    EXPECT_EQ(draw.mark, -1);
    EXPECT_EQ(draw.mode, 10);
    // Its errors are told like those of a surface.
    foreign->Fail("Draw", support::RunTimeError(5, L"Fremd"));
    {
        const MessageBoxes boxes{IDOK};
        EXPECT_OK(input->MouseDown(50, 60, box.Get(), trans.Get()));
        ASSERT_EQ(boxes.Seen().size(), 1U);
        EXPECT_EQ(boxes.Seen()[0],
                  support::ErrorBox(L"CSymInput.MouseDown\r\n" + support::RunTimeError(5).description));
    }
    EXPECT_EQ(support::Outcome(input->Draw(box.Get(), trans.Get())), support::RunTimeError(5, L"Fremd"));
}

/// What fails while a tool is made is shown, and the host gets Nothing.
TEST_F(SymbolInput, AFailureIsShownAndTheHostGetsNothing) {
    const Ref<support::ForeignSymbol> foreign = support::ForeignSymbol::Create(L"Fremd");
    Ref<_CSymbol> handed(foreign.Get());
    EXPECT_OK(catalogue->AppendRef(handed.InOut()));
    foreign->RefuseQuestions({support::Numbered(70), L"Fremd", L"Kein Zugriff auf das Symbol"});
    const MessageBoxes boxes{IDOK, IDOK};
    EXPECT_FALSE(Input(L"Fremd"));
    const support::Answer answer = Dispatch(catalogue).Call(L"GetSymInput", {L"Fremd"});
    EXPECT_OK(answer.status);
    EXPECT_EQ(answer.value.Object(), nullptr);
    ASSERT_EQ(boxes.Seen().size(), 2U);
    for (const support::Box& seen : boxes.Seen())
        EXPECT_EQ(seen, support::ErrorBox(L"CSymbolColl.GetSymInput\r\nKein Zugriff auf das Symbol"));
}

/// A host that forgets what an event needs is told so; what an event does not need may be missing.
TEST_F(SymbolInput, NothingForSurfaceOrTransformation) {
    Add(tools::LinesOnly(), L"C:\\Katalog\\Bett.syb");
    const Ref<_CSymInput> input = Input(L"Bett");
    EXPECT_OK(input->Draw(nullptr, nullptr));
    EXPECT_OK(input->KeyUp(36, 0, nullptr, nullptr));
    EXPECT_OK(input->MouseMove(10, 10, box.Get(), nullptr)); // says nothing
    LONG x = 0;
    EXPECT_OK(input->get_PosX(&x));
    EXPECT_EQ(x, -1);
    {
        const MessageBoxes boxes{IDOK};
        EXPECT_OK(input->MouseDown(10, 10, box.Get(), nullptr));
        ASSERT_EQ(boxes.Seen().size(), 1U);
        EXPECT_EQ(boxes.Seen()[0],
                  support::ErrorBox(L"CSymInput.MouseDown\r\n" + support::RunTimeError(91).description));
    }
    EXPECT_OK(input->MouseMove(10, 10, box.Get(), trans.Get()));
    EXPECT_EQ(support::Outcome(input->Draw(nullptr, trans.Get())), support::RunTimeError(91));
    EXPECT_EQ(support::Outcome(input->Draw(box.Get(), nullptr)), support::RunTimeError(91));
    EXPECT_EQ(box->Property(L"DrawMode"), R2_COPYPEN);
    const MessageBoxes boxes{IDOK, IDOK};
    EXPECT_OK(input->KeyUp(36, 0, nullptr, trans.Get()));
    EXPECT_OK(input->MouseDown(10, 10, nullptr, trans.Get()));
    EXPECT_EQ(boxes.Seen().size(), 2U);
    VARIANT_BOOL ready = VARIANT_TRUE;
    EXPECT_OK(input->get_Ready(&ready));
    EXPECT_EQ(ready, VARIANT_FALSE);
}

/// After the fixing click not even a broken control matters.
TEST_F(SymbolInput, FixedIgnoresEventsWhateverTheyBring) {
    Add(tools::LinesOnly(), L"C:\\Katalog\\Bett.syb");
    const Ref<_CSymInput> input = Input(L"Bett");
    EXPECT_OK(input->MouseDown(10, 10, box.Get(), trans.Get()));
    const MessageBoxes boxes;
    EXPECT_OK(input->MouseMove(1, 1, nullptr, nullptr));
    EXPECT_OK(input->MouseDown(1, 1, nullptr, nullptr));
    EXPECT_OK(input->KeyUp(36, 0, nullptr, nullptr));
    EXPECT_TRUE(boxes.Seen().empty());
}

/// Hosts pass coordinates as they have them.
TEST_F(SymbolInput, TakesLateBoundNumbersOfEveryType) {
    Add(tools::LinesOnly(), L"C:\\Katalog\\Bett.syb");
    const Dispatch input(Input(L"Bett"));
    EXPECT_OK(input.Call(L"MouseMove", {10, 20.0, box, trans}).status);
    EXPECT_EQ(input.Get(L"PosX").value.Long(), view.offsetX + 100);
    EXPECT_OK(input.Call(L"KeyUp", {36, L"0", box, trans}).status);
    EXPECT_OK(input
                  .Call(L"MouseDown", {},
                        {{L"Trans", trans}, {L"pb", box}, {L"sScreenY", 2.5F}, {L"sScreenX", 1.5F}})
                  .status);
    EXPECT_EQ(input.Get(L"PosX").value.Long(), view.offsetX + 20);
    EXPECT_EQ(input.Get(L"PosY").value.Long(), view.offsetY + 20);
    EXPECT_TRUE(input.Get(L"Ready").value.Bool());
}

} // namespace
