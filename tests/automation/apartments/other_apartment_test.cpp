#include "support/automation_test.h"
#include "support/enumerate.h"
#include "support/other_apartment.h"
#include "support/picture_box.h"
#include "support/shapes.h"

#include <atomic>
#include <thread>
#include <vector>

namespace {

using support::Dispatch;
using support::Ref;
using support::Value;

const std::vector<support::ElementSpec> kElements = {
    {.type = symPoly, .points = {{0, 0}, {90, 0}, {90, 60}}, .closed = true, .fillColor = 0x00AA00},
    {.type = symCircle, .points = {{40, 40}}, .mainColor = 0xFF, .radius = 30},
    {.type = symText, .points = {{5, 6}}, .text = L"WC", .font = support::FontSpec{}, .textAngle = 0.5}};

Ref<_CSymbol> MakeSymbol(const std::vector<support::ElementSpec>& elements = kElements) {
    const Ref<_CSymbol> symbol = support::NewSymbol(10, 20, 90, 60, elements);
    EXPECT_OK(symbol->put_FilePath(support::Bstr(L"C:\\Katalog\\WC.syb")));
    return symbol;
}

/// Objects of another user-interface thread, which this one has through proxies.
class OtherApartments : public support::AutomationTest {
protected:
    ~OtherApartments() override { symbol.Reset(); }

    support::OtherApartment other;
    Ref<_CSymbol> symbol = other.Make<_CSymbol>([] { return MakeSymbol(); });
    support::Canvas canvas;
    Ref<support::PictureBox> box = support::PictureBox::Create(canvas);
    Ref<_CTrans> trans = support::NewTrans();
};

TEST_F(OtherApartments, AppendCopiesTheirSymbols) {
    const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    ASSERT_OK(catalogue->Append(symbol.Get()));
    EXPECT_OK(symbol->CreateNew(0, 0, 0, 0, nullptr));
    Ref<_CSymbol> copy;
    ASSERT_OK(catalogue->get_ItemByIndex(support::Bstr(L"wc"), copy.Put()));
    ASSERT_TRUE(copy);
    EXPECT_EQ(support::ElementsOf(copy.Get()), kElements);
    LONG figure = 0;
    EXPECT_OK(copy->get_RefX(&figure));
    EXPECT_EQ(figure, 10);
    EXPECT_OK(copy->get_RefY(&figure));
    EXPECT_EQ(figure, 20);
    EXPECT_OK(copy->get_Width(&figure));
    EXPECT_EQ(figure, 0) << "a copy has no size";
}

TEST_F(OtherApartments, AppendRefTakesTheirSymbols) {
    const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    Ref<_CSymbol> given = symbol;
    ASSERT_OK(catalogue->AppendRef(given.InOut()));
    EXPECT_FALSE(given);
    Ref<_CSymbol> item;
    ASSERT_OK(catalogue->get_ItemByIndex(support::Bstr(L"WC"), item.Put()));
    EXPECT_TRUE(support::SameObject(item.Get(), symbol.Get()));
}

TEST_F(OtherApartments, APlacingToolDrawsTheirSymbols) {
    VARIANT_BOOL absolute = VARIANT_FALSE;
    const auto tool = support::Create<CSymTool, _CSymTool>();
    ASSERT_OK(tool->AddSymref(17, 50, 60, 0, symbol.Get()));
    ASSERT_OK(tool->MouseDownReal(0, 0, box.Get(), trans.Get(), &absolute));
    ASSERT_OK(tool->Draw(box.Get(), trans.Get()));
    support::Canvas expected;
    const Ref<support::PictureBox> plain = support::PictureBox::Create(expected);
    const auto own = support::Create<CSymTool, _CSymTool>();
    ASSERT_OK(own->AddSymref(17, 50, 60, 0, MakeSymbol().Get()));
    ASSERT_OK(own->MouseDownReal(0, 0, plain.Get(), trans.Get(), &absolute));
    ASSERT_OK(own->Draw(plain.Get(), trans.Get()));
    EXPECT_TRUE(support::IsDrawnOn(canvas));
    EXPECT_TRUE(support::SamePicture(canvas, expected));
}

TEST_F(OtherApartments, ALateBoundDrawMayLeaveTheMarkColourOut) {
    EXPECT_OK(Dispatch(symbol).Call(L"Draw", {50, 60, 0.0, box, trans, 1.0, 1.0}).status);
    EXPECT_TRUE(support::IsDrawnOn(canvas));
}

TEST_F(OtherApartments, TheMarshallerRefusesNullForTheMarkColour) {
    constexpr HRESULT kNullReference = static_cast<HRESULT>(0x800706F4);
    EXPECT_EQ(symbol->Draw(50, 60, 0, box.Get(), trans.Get(), 1, 1, nullptr), kNullReference);
    EXPECT_FALSE(support::IsDrawnOn(canvas));
}

TEST_F(OtherApartments, VariablesByReferenceComeBack) {
    const Ref<_CTrans> theirs = other.Make<_CTrans>([] { return support::NewTrans(10); });
    LONG x = 250;
    LONG y = 350;
    ASSERT_OK(theirs->WorldToScreen(&x, &y));
    EXPECT_EQ(x, 25);
    Value late = 350;
    Value column = 250;
    ASSERT_OK(
        Dispatch(theirs).Call(L"WorldToScreen", {Value::Variable(late), Value::Variable(column)}).status);
    EXPECT_EQ(late.Long(), 35);
    Ref<_CRect> rect;
    ASSERT_OK(symbol->GetBoundingRect(0, 0, 0, rect.Put()));
    LONG side = 0;
    ASSERT_OK(rect->get_Left(&side));
    EXPECT_EQ(side, -10);
}

TEST_F(OtherApartments, ElementsFontsAndEnumeratorsWork) {
    EXPECT_EQ(support::ElementsOf(symbol.Get()), kElements);
    Ref<_CSymElementColl> elements;
    ASSERT_OK(symbol->GetSymElements(elements.Put()));
    EXPECT_EQ(support::RestOf(support::EnumeratorOf(elements.Get()).Get()).size(), kElements.size());
}

TEST_F(OtherApartments, ErrorsComeWithTheirNumber) {
    EXPECT_OK(symbol->put_FilePath(support::Bstr(L"ohne")));
    EXPECT_EQ(symbol->ReadFromFile(), support::Numbered(3501));
    EXPECT_EQ(Dispatch(symbol).Call(L"ReadFromFile").failure,
              support::LibraryError(3501, L"CSymbol.ReadFromFile"));
}

/// A catalogue with the symbol, and a plan with it placed once, made where it is called.
Ref<_CPlan> MakePlan(const std::vector<support::ElementSpec>& elements = kElements) {
    const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    Ref<_CSymbol> given = MakeSymbol(elements);
    EXPECT_OK(catalogue->AppendRef(given.InOut()));
    auto plan = support::Create<CPlan, _CPlan>();
    Ref<_CPlacement> placed;
    EXPECT_OK(plan->putref_Symbols(catalogue.Get()));
    EXPECT_OK(plan->Add(support::Bstr(L"WC"), 50, 60, 0, placed.Put()));
    return plan;
}

/// Adds, finds, moves, snaps and draws.
void ExpectToWork(const Ref<_CPlan>& plan, support::Canvas& canvas, IDispatch* box) {
    const Ref<_CTrans> trans = support::NewTrans();
    const Dispatch late(plan);
    EXPECT_EQ(late.Get(L"Count").value.Long(), 1);
    Ref<_CPlacement> second;
    ASSERT_OK(plan->Add(support::Bstr(L"wc"), 150, 60, 0, second.Put()));
    EXPECT_OK(plan->HitTest(trans.Get(), 160, 50, second.Put()));
    ASSERT_TRUE(second);
    EXPECT_EQ(Dispatch(second).Get(L"Id").value.Long(), 2);
    EXPECT_OK(Dispatch(second).Put(L"LogX", 1150).status);
    EXPECT_EQ(late.Call(L"HitTest", {trans, 160, 50}).value.Object(), nullptr);
    EXPECT_EQ(support::RestOf(support::EnumeratorOf(plan.Get()).Get()).size(), 2U);
    const auto rect = support::Create<CRect, _CRect>();
    EXPECT_OK(rect->put_Right(200));
    EXPECT_OK(rect->put_Bottom(200));
    EXPECT_EQ(Dispatch(late.Call(L"HitRect", {trans, rect}).value.Object()).Get(L"Count").value.Long(), 1);
    Value x = 41.0f, y = 42.0f, worldX = 0, worldY = 0;
    EXPECT_TRUE(late.Call(L"CatchPt", {Value::Variable(x), Value::Variable(y), Value::Variable(worldX),
                                       Value::Variable(worldY), trans, static_cast<SHORT>(4)})
                    .value.Bool());
    EXPECT_EQ(worldX.Long(), 40);
    EXPECT_OK(plan->Draw(box, trans.Get()));
    EXPECT_TRUE(support::IsDrawnOn(canvas));
    EXPECT_EQ(late.Call(L"Add", {L"Bad", 0, 0, 0.0}).failure, support::RunTimeError(5, L"QPlan"));
}

TEST_F(OtherApartments, TheirPlansWork) {
    ExpectToWork(other.Make<_CPlan>([] { return MakePlan(); }), canvas, box.Get());
}

TEST_F(OtherApartments, OurPlansTakeTheirCatalogues) {
    const auto catalogue = other.Make<_CSymbolColl>([&] {
        auto made = support::Create<CSymbolColl, _CSymbolColl>();
        Ref<_CSymbol> given = MakeSymbol();
        EXPECT_OK(made->AppendRef(given.InOut()));
        return made;
    });
    const Ref<_CPlan> plan = MakePlan();
    ASSERT_OK(plan->putref_Symbols(catalogue.Get()));
    ExpectToWork(plan, canvas, box.Get());
}

TEST_F(OtherApartments, PicturesAreDrawnOnFromHere) {
    const auto picture = other.Make<_CPicture>([] { return support::Create<CPicture, _CPicture>(); });
    EXPECT_EQ(Dispatch(picture).Get(L"hDC").failure, support::RunTimeError(91, L"QPlan"));
    ASSERT_OK(Dispatch(picture).Call(L"Create", {200, 150}).status);
    LONG noMark = -1;
    EXPECT_OK(symbol->Draw(50, 60, 0, picture.Get(), trans.Get(), 1, 1, &noMark));
    LONG colour = 0;
    EXPECT_OK(picture->get_Pixel(120, 45, &colour));
    EXPECT_EQ(colour, 0x00AA00);
}

/// Each with a catalogue, a plan and a surface of its own, at the same time.
TEST_F(OtherApartments, PlansOfSeveralThreadsDoNotMeet) {
    std::vector<std::thread> threads;
    std::atomic<int> strays = 0;
    // Wine's standard fonts are not made for several threads: their sizes are not to be relied on.
    std::vector<support::ElementSpec> elements = kElements;
    elements.back().font.reset();
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&strays, &elements, i] {
            if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)))
                return;
            {
                const Ref<_CPlan> plan = MakePlan(elements);
                const Ref<_CTrans> own = support::NewTrans();
                const auto picture = support::Create<CPicture, _CPicture>();
                EXPECT_OK(picture->Create(300, 200, i));
                for (LONG x = 0; x < 200; ++x) {
                    Ref<_CPlacement> hit;
                    EXPECT_OK(plan->Draw(picture.Get(), own.Get()));
                    EXPECT_OK(plan->HitTest(own.Get(), x, 50, hit.Put()));
                    strays += static_cast<bool>(hit) != (x >= 40 && x <= 130);
                }
            }
            CoUninitialize();
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(strays, 0);
}

} // namespace
