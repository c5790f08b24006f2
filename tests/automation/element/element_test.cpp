#include "support/automation_test.h"
#include "support/shapes.h"

#include <limits>

namespace {

using support::Bstr;
using support::Describe;
using support::Dispatch;
using support::ElementSpec;
using support::NewElement;
using support::NewFont;
using support::NewPtList;
using support::Outcome;
using support::Ref;
using support::RunTimeError;

/// A text element in which every field differs from its start value.
ElementSpec FilledText() {
    return {.type = symText,
            .points = {{1, 2}, {3, 4}},
            .lineWidth = 5,
            .closed = true,
            .fillColor = 0x00FF8040,
            .mainColor = 0x00204060,
            .radius = 77,
            .text = L"Küche \"groß\"",
            .font = support::FontSpec{.name = L"Arial",
                                      .size = 18,
                                      .bold = true,
                                      .italic = true,
                                      .underline = true,
                                      .strikethrough = true},
            .textAngle = 0.75,
            .textAlign = TA_CENTER,
            .textBkMode = OPAQUE};
}

class Element : public support::AutomationTest {};

TEST_F(Element, ANewOneHasItsStartValues) {
    const auto element = support::Create<CSymElement, _CSymElement>();
    EXPECT_EQ(Describe(element.Get()), ElementSpec{});
    Ref<_CPtList> list;
    Ref<IFontDisp> font;
    EXPECT_OK(element->get_PtList(list.Put()));
    EXPECT_OK(element->get_TxtFont(font.Put()));
    EXPECT_FALSE(list);
    EXPECT_FALSE(font);
    LONG fill = 0;
    LONG mode = 0;
    EXPECT_OK(element->get_FillColor(&fill));
    EXPECT_OK(element->get_TxtBkMode(&mode));
    EXPECT_EQ(fill, -1);
    EXPECT_EQ(mode, 1);
}

TEST_F(Element, KeepsEveryField) {
    const Ref<_CSymElement> element = NewElement(FilledText());
    EXPECT_EQ(Describe(element.Get()), FilledText());
}

TEST_F(Element, InitResetsAFilledElement) {
    const Ref<_CSymElement> element = NewElement(FilledText());
    EXPECT_OK(element->Init());
    EXPECT_EQ(Describe(element.Get()), ElementSpec{});
    Ref<_CPtList> list;
    EXPECT_OK(element->get_PtList(list.Put()));
    EXPECT_FALSE(list);
}

TEST_F(Element, ValidatesNothing) {
    const Ref<_CSymElement> element = NewElement({});
    constexpr LONG kHighest = std::numeric_limits<LONG>::max();
    constexpr LONG kLowest = std::numeric_limits<LONG>::min();
    const ElementSpec odd{.type = 99,
                          .points = {},
                          .lineWidth = kLowest,
                          .fillColor = kHighest,
                          .mainColor = kLowest,
                          .radius = -1,
                          .textAngle = -1e300,
                          .textAlign = kHighest,
                          .textBkMode = kLowest};
    EXPECT_EQ(Describe(NewElement(odd).Get()), odd);
    const Dispatch late(element);
    EXPECT_OK(late.Put(L"ElementType", -7).status);
    EXPECT_EQ(late.Get(L"ElementType").value.Long(), -7);
}

TEST_F(Element, TextsMayHoldAnyCharacter) {
    const Ref<_CSymElement> element = NewElement({});
    const std::wstring text = std::wstring(L"a\0b", 3) + L"\r\n;\x20AC\xD83D\xDE00";
    EXPECT_OK(element->put_Text(Bstr(text)));
    Bstr read;
    EXPECT_OK(element->get_Text(read.Put()));
    EXPECT_EQ(read.Text(), text);
    EXPECT_OK(element->put_Text(nullptr));
    EXPECT_OK(element->get_Text(read.Put()));
    EXPECT_EQ(read.Text(), L"");
}

TEST_F(Element, SharesItsListAndItsFont) {
    const Ref<_CSymElement> element = NewElement({});
    const Ref<_CPtList> list = NewPtList({{1, 2}});
    const Ref<IFontDisp> font = NewFont({});
    EXPECT_OK(element->putref_PtList(list.Get()));
    EXPECT_OK(element->putref_TxtFont(font.Get()));
    EXPECT_OK(list->AddPoint(support::NewPt(3, 4).Get()));
    EXPECT_EQ(Describe(element.Get()).points.size(), 2U) << "the list is not copied";
    Ref<_CPtList> sameList;
    Ref<IFontDisp> sameFont;
    EXPECT_OK(element->get_PtList(sameList.Put()));
    EXPECT_OK(element->get_TxtFont(sameFont.Put()));
    EXPECT_EQ(sameList.Get(), list.Get());
    EXPECT_EQ(sameFont.Get(), font.Get());
    EXPECT_OK(element->putref_PtList(nullptr));
    EXPECT_OK(element->putref_TxtFont(nullptr));
    EXPECT_OK(element->get_PtList(sameList.Put()));
    EXPECT_FALSE(sameList);
}

TEST_F(Element, LateBoundPropertiesMatch) {
    const Dispatch element(NewElement(FilledText()));
    EXPECT_EQ(element.Get(L"Text").value.Text(), FilledText().text);
    EXPECT_EQ(element.Get(L"TxtAngle").value.Double(), 0.75);
    EXPECT_EQ(element.Get(L"ElementType").value.Long(), symText);
    EXPECT_TRUE(element.Get(L"LineClosed").value.Bool());
    const Dispatch font(element.Get(L"TxtFont").value.Object());
    EXPECT_EQ(font.Get(L"Name").value.Text(), L"Arial");
    EXPECT_OK(element.Put(L"TxtFont", NewFont({.name = L"Arial"})).status);
}

class CopyFrom : public support::AutomationTest {
protected:
    Ref<_CSymElement> target = NewElement({});
    Ref<_CSymElement> source = NewElement(FilledText());
};

TEST_F(CopyFrom, TakesEveryField) {
    EXPECT_OK(target->CopyFrom(source.Get()));
    EXPECT_EQ(Describe(target.Get()), FilledText());
}

TEST_F(CopyFrom, IsIndependentOfItsSource) {
    Ref<_CPtList> before;
    EXPECT_OK(target->get_PtList(before.Put()));
    EXPECT_OK(target->CopyFrom(source.Get()));
    Ref<_CPtList> points;
    Ref<IFontDisp> font;
    EXPECT_OK(source->get_PtList(points.Put()));
    EXPECT_OK(source->get_TxtFont(font.Put()));
    Ref<_CPt> first;
    EXPECT_OK(points->get_Item(1, first.Put()));
    EXPECT_OK(first->put_X(99));
    EXPECT_OK(points->AddPoint(support::NewPt(9, 9).Get()));
    EXPECT_OK(Dispatch(font).Put(L"Bold", false).status);
    EXPECT_OK(Dispatch(font).Put(L"Name", L"Times New Roman").status);
    EXPECT_OK(source->put_Text(Bstr(L"neu")));
    EXPECT_EQ(Describe(target.Get()), FilledText());
    Ref<_CPtList> after;
    EXPECT_OK(target->get_PtList(after.Put()));
    EXPECT_EQ(after.Get(), before.Get()) << "its own list takes the contents";
}

/// What comes before the failing step is copied, what comes after it is not.
TEST_F(CopyFrom, NeedsAPointListOfItsOwn) {
    EXPECT_OK(target->putref_PtList(nullptr));
    EXPECT_EQ(Outcome(target->CopyFrom(source.Get())), RunTimeError(91));
    EXPECT_EQ(Describe(target.Get()), ElementSpec{.text = FilledText().text});
}

TEST_F(CopyFrom, NeedsAFontInItsSource) {
    EXPECT_OK(source->putref_TxtFont(nullptr));
    EXPECT_EQ(Outcome(target->CopyFrom(source.Get())), RunTimeError(91));
    ElementSpec untilTheFont = FilledText();
    untilTheFont.font.reset();
    untilTheFont.lineWidth = 0;
    untilTheFont.closed = false;
    untilTheFont.type = symUndefined;
    EXPECT_EQ(Describe(target.Get()), untilTheFont);
}

TEST_F(CopyFrom, NeedsPointsInItsSource) {
    EXPECT_OK(source->putref_PtList(nullptr));
    EXPECT_EQ(Outcome(target->CopyFrom(source.Get())).status, support::Numbered(91));
}

TEST_F(CopyFrom, NeedsASource) {
    EXPECT_EQ(Outcome(target->CopyFrom(nullptr)), RunTimeError(91));
}

TEST_F(CopyFrom, OfItselfChangesNothing) {
    EXPECT_OK(source->CopyFrom(source.Get()));
    EXPECT_EQ(Describe(source.Get()), FilledText());
}

TEST_F(CopyFrom, LateBound) {
    EXPECT_OK(Dispatch(target).Call(L"CopyFrom", {source}).status);
    EXPECT_EQ(Describe(target.Get()), FilledText());
    EXPECT_OK(source->putref_TxtFont(nullptr));
    EXPECT_EQ(Dispatch(target).Call(L"CopyFrom", {source}).failure, RunTimeError(91));
}

} // namespace
