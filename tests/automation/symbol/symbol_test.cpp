#include "support/automation_test.h"
#include "support/shapes.h"

#include <limits>

namespace {

using support::Bstr;
using support::Dispatch;
using support::ElementsOf;
using support::ElementSpec;
using support::FontSpec;
using support::NewElements;
using support::NewSymbol;
using support::Outcome;
using support::Ref;
using support::RunTimeError;
using support::Value;

class Symbol : public support::AutomationTest {
protected:
    Ref<_CSymbol> symbol = NewSymbol();
    Dispatch late{symbol};

    LONG Number(const wchar_t* property) const { return late.Get(property).value.Long(); }
    void ExpectFrame(LONG refX, LONG refY, LONG width, LONG height) const {
        EXPECT_EQ(Number(L"RefX"), refX);
        EXPECT_EQ(Number(L"RefY"), refY);
        EXPECT_EQ(Number(L"Width"), width);
        EXPECT_EQ(Number(L"Height"), height);
    }
};

const ElementSpec kTriangle{.type = symPoly,
                            .points = {{0, 0}, {30, 0}, {0, 40}},
                            .lineWidth = 2,
                            .closed = true,
                            .fillColor = 0xFF,
                            .mainColor = 0x00FF00};

TEST_F(Symbol, IsEmptyAfterCreation) {
    ExpectFrame(0, 0, 0, 0);
    EXPECT_EQ(late.Get(L"FilePath").value.Text(), L"");
    EXPECT_EQ(late.Get(L"Name").value.Text(), L"");
    EXPECT_TRUE(ElementsOf(symbol.Get()).empty());
}

TEST_F(Symbol, KeepsItsSimpleProperties) {
    constexpr LONG kLowest = std::numeric_limits<LONG>::min();
    EXPECT_OK(symbol->put_Width(kLowest));
    EXPECT_OK(symbol->put_Height(7));
    EXPECT_OK(symbol->put_FilePath(Bstr(L"x\\y")));
    EXPECT_OK(symbol->put_Etagenbreite(12345));
    ExpectFrame(0, 0, kLowest, 7);
    EXPECT_EQ(late.Get(L"FilePath").value.Text(), L"x\\y");
    EXPECT_OK(symbol->put_FilePath(nullptr));
    EXPECT_EQ(late.Get(L"FilePath").value.Text(), L"");
}

TEST_F(Symbol, TheNameIsTheFilesNameWithoutExtension) {
    const std::pair<const wchar_t*, const wchar_t*> kNames[] = {
        {L"C:\\Katalog\\Tür links.syb", L"Tür links"},
        {L"Tür.links.syb", L"Tür.links"},
        {L"C:\\Katalog.alt\\Herd", L"Herd"},
        {L"C:\\Katalog\\.syb", L""},
        {L"C:\\Katalog\\", L""},
        {L"", L""},
    };
    for (const auto& [path, name] : kNames) {
        EXPECT_OK(symbol->put_FilePath(Bstr(path)));
        EXPECT_EQ(support::NameOf(symbol.Get()), name);
    }
}

TEST_F(Symbol, CreateNewWithoutElements) {
    EXPECT_OK(symbol->CreateNew(1, 2, 3, 4, NewElements({kTriangle}).Get()));
    EXPECT_OK(symbol->CreateNew(5, -6, 7, 8, nullptr));
    ExpectFrame(5, -6, 7, 8);
    EXPECT_TRUE(ElementsOf(symbol.Get()).empty());
    EXPECT_OK(late.Call(L"CreateNew", {9, 9, 9, 9, Value::Nothing()}).status);
    ExpectFrame(9, 9, 9, 9);
}

TEST_F(Symbol, EveryKindOfElementComesBack) {
    const std::vector<ElementSpec> specs = {
        kTriangle,
        {.type = symCircle, .points = {{5, 6}}, .lineWidth = 1, .fillColor = 3, .mainColor = 4, .radius = 50},
        {.type = symArc, .points = {{5, 6}, {10, 6}, {5, 11}}, .mainColor = 9, .radius = 5},
        {.type = symText,
         .points = {{7, 8}},
         .closed = true,
         .mainColor = 1,
         .text = L"Küche; \"2\"",
         .font = FontSpec{.name = L"Times New Roman",
                          .size = 14,
                          .bold = true,
                          .italic = false,
                          .underline = true,
                          .strikethrough = true},
         .textAngle = -1.25,
         .textAlign = TA_RIGHT,
         .textBkMode = OPAQUE},
    };
    EXPECT_OK(symbol->CreateNew(1, 2, 3, 4, NewElements(specs).Get()));
    const auto back = ElementsOf(symbol.Get());
    ASSERT_EQ(back.size(), specs.size());
    for (std::size_t i = 0; i < specs.size(); ++i)
        EXPECT_EQ(back[i], specs[i]) << i;
}

TEST_F(Symbol, AnUndefinedElementKeepsItsPlace) {
    ElementSpec undefined = kTriangle;
    undefined.type = symUndefined;
    EXPECT_OK(symbol->CreateNew(0, 0, 1, 1, NewElements({kTriangle, undefined, kTriangle}).Get()));
    const auto back = ElementsOf(symbol.Get());
    ASSERT_EQ(back.size(), 3U);
    EXPECT_EQ(back[0], kTriangle);
    EXPECT_EQ(back[1], ElementSpec{}) << "start values and no points";
    EXPECT_EQ(back[2], kTriangle);
}

TEST_F(Symbol, AnUndefinedElementNeedsNoPoints) {
    const auto elements = support::Create<CSymElementColl, _CSymElementColl>();
    auto bare = support::Create<CSymElement, _CSymElement>();
    EXPECT_OK(elements->AppendRef(bare.InOut()));
    EXPECT_OK(symbol->CreateNew(0, 0, 1, 1, elements.Get()));
    EXPECT_EQ(ElementsOf(symbol.Get()).size(), 1U);
}

TEST_F(Symbol, ATextWithoutAFontGetsTheStandardFont) {
    EXPECT_OK(symbol->CreateNew(0, 0, 1, 1,
                                NewElements({{.type = symText, .points = {{1, 2}}, .text = L"x"}}).Get()));
    const auto back = ElementsOf(symbol.Get());
    ASSERT_EQ(back.size(), 1U);
    ASSERT_TRUE(back[0].font.has_value());
    // Where Arial is missing a standard font takes another name; asking for it here shows which.
    const auto standard = support::Describe(support::NewElement({.font = FontSpec{}}).Get());
    EXPECT_TRUE(*back[0].font == *standard.font);
    EXPECT_EQ(back[0].font->size, 6);
    EXPECT_FALSE(back[0].font->bold);
}

TEST_F(Symbol, OnlyTextsKeepTheirFont) {
    ElementSpec poly = kTriangle;
    poly.font = FontSpec{.bold = true};
    EXPECT_OK(symbol->CreateNew(0, 0, 1, 1, NewElements({poly}).Get()));
    EXPECT_FALSE(ElementsOf(symbol.Get())[0].font.has_value());
}

TEST_F(Symbol, TakesAndGivesCopies) {
    const Ref<_CSymElementColl> elements = NewElements({kTriangle});
    EXPECT_OK(symbol->CreateNew(0, 0, 1, 1, elements.Get()));
    Ref<_CSymElement> element;
    EXPECT_OK(elements->get_ItemByPos(1, element.Put()));
    EXPECT_OK(element->put_MainColor(1));
    EXPECT_EQ(ElementsOf(symbol.Get())[0], kTriangle);

    Ref<_CSymElementColl> given;
    EXPECT_OK(symbol->GetSymElements(given.Put()));
    EXPECT_OK(given->get_ItemByPos(1, element.Put()));
    EXPECT_OK(element->put_MainColor(1));
    Ref<_CPtList> points;
    EXPECT_OK(element->get_PtList(points.Put()));
    EXPECT_OK(points->Clear());
    EXPECT_EQ(ElementsOf(symbol.Get())[0], kTriangle);
    Ref<_CSymElementColl> again;
    EXPECT_OK(symbol->GetSymElements(again.Put()));
    EXPECT_NE(again.Get(), given.Get()) << "a new collection on every call";
}

TEST_F(Symbol, TheFontIsCopiedToo) {
    Ref<_CSymElementColl> elements =
        NewElements({{.type = symText, .points = {{1, 2}}, .font = FontSpec{.size = 14}}});
    EXPECT_OK(symbol->CreateNew(0, 0, 1, 1, elements.Get()));
    Ref<_CSymElement> element;
    Ref<IFontDisp> font;
    EXPECT_OK(elements->get_ItemByPos(1, element.Put()));
    EXPECT_OK(element->get_TxtFont(font.Put()));
    EXPECT_OK(Dispatch(font).Put(L"Bold", true).status);
    EXPECT_FALSE(ElementsOf(symbol.Get())[0].font->bold);
}

TEST_F(Symbol, WhatItGaveCanBeTakenBack) {
    EXPECT_OK(
        symbol->CreateNew(1, 2, 3, 4, NewElements({kTriangle, {.type = symText, .points = {{1, 2}}}}).Get()));
    const auto before = ElementsOf(symbol.Get());
    Ref<_CSymElementColl> elements;
    EXPECT_OK(symbol->GetSymElements(elements.Put()));
    const Ref<_CSymbol> other = NewSymbol();
    EXPECT_OK(other->CreateNew(1, 2, 3, 4, elements.Get()));
    EXPECT_TRUE(ElementsOf(other.Get()) == before);
}

TEST_F(Symbol, AnElementWithAnEmptyPointListFails) {
    EXPECT_EQ(Outcome(symbol->CreateNew(1, 2, 3, 4, NewElements({{.type = symPoly}}).Get())),
              RunTimeError(9));
    EXPECT_EQ(late.Call(L"CreateNew", {1, 2, 3, 4, NewElements({{.type = symCircle}})}).failure,
              RunTimeError(9));
}

TEST_F(Symbol, AnElementWithoutAPointListFails) {
    const Ref<_CSymElementColl> elements = NewElements({kTriangle});
    Ref<_CSymElement> element;
    EXPECT_OK(elements->get_ItemByPos(1, element.Put()));
    EXPECT_OK(element->putref_PtList(nullptr));
    EXPECT_OK(symbol->CreateNew(5, 6, 7, 8, NewElements({kTriangle}).Get()));
    EXPECT_EQ(Outcome(symbol->CreateNew(1, 2, 3, 4, elements.Get())), RunTimeError(91));
    ExpectFrame(1, 2, 3, 4); // is stored first; elements are replaced as a whole
    EXPECT_EQ(ElementsOf(symbol.Get()), (std::vector<ElementSpec>{kTriangle}));
}

TEST_F(Symbol, AnEmptyCollectionFails) {
    EXPECT_EQ(Outcome(symbol->CreateNew(1, 2, 3, 4, NewElements({}).Get())), RunTimeError(9));
    ExpectFrame(1, 2, 3, 4);
}

TEST_F(Symbol, MissingPlacesForResults) {
    EXPECT_EQ(Outcome(symbol->GetSymElements(nullptr)).status, E_POINTER);
    EXPECT_EQ(Outcome(symbol->get_Name(nullptr)).status, E_POINTER);
    EXPECT_EQ(Outcome(symbol->get_Width(nullptr)).status, E_POINTER);
}

} // namespace
