#include "support/automation_test.h"
#include "support/enumerate.h"
#include "support/other_apartment.h"
#include "support/picture_box.h"
#include "support/shapes.h"

namespace {

using support::Dispatch;
using support::Ref;
using support::Value;

const std::vector<support::ElementSpec> kElements = {
    {.type = symPoly, .points = {{0, 0}, {90, 0}, {90, 60}}, .closed = true, .fillColor = 0x00AA00},
    {.type = symCircle, .points = {{40, 40}}, .mainColor = 0xFF, .radius = 30},
    {.type = symText, .points = {{5, 6}}, .text = L"WC", .font = support::FontSpec{}, .textAngle = 0.5}};

Ref<_CSymbol> MakeSymbol() {
    const Ref<_CSymbol> symbol = support::NewSymbol(10, 20, 90, 60, kElements);
    EXPECT_OK(symbol->put_FilePath(support::Bstr(L"C:\\Katalog\\WC.syb")));
    return symbol;
}

/// Objects of another user-interface thread, which this one has through proxies.
class OtherApartments : public support::AutomationTest {
protected:
    ~OtherApartments() override { symbol.Reset(); }

    support::OtherApartment other;
    Ref<_CSymbol> symbol = other.Make<_CSymbol>(MakeSymbol);
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

} // namespace
