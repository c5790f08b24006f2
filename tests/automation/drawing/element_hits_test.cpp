#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/shapes.h"

/// The hit tests of elements say that they are not implemented; those of collections ask each element.

namespace {

using support::Dispatch;
using support::MessageBoxes;
using support::Ref;
using support::Value;

class ElementHits : public support::AutomationTest {
protected:
    static void ExpectBoxes(const MessageBoxes& boxes, std::size_t count) {
        const support::Box box{support::ProgramTitle(),
                               L"Funktion noch nicht implementiert!",
                               {IDOK},
                               support::BoxIcon::Information};
        EXPECT_EQ(boxes.Seen(), std::vector(count, box));
    }

    Ref<_CTrans> trans = support::NewTrans();
    support::ElementSpec line{.type = symPoly, .points = {{0, 0}, {10, 0}, {10, 10}}};
    Ref<_CSymElement> element = support::NewElement(line);
    Ref<_CSymElementColl> elements = support::NewElements({line, line, line});
};

TEST_F(ElementHits, OfAnElementByTheVtable) {
    const MessageBoxes boxes{IDOK, IDOK, IDOK};
    VARIANT_BOOL hit = 7;
    EXPECT_OK(element->ObjIdentByPt(trans.Get(), 5, 0, &hit));
    EXPECT_EQ(hit, VARIANT_FALSE);
    ExpectBoxes(boxes, 1);
    hit = 7;
    Ref<_CRect> rect = support::Create<CRect, _CRect>();
    EXPECT_OK(element->ObjIdentByRect(trans.Get(), rect.InOut(), &hit));
    EXPECT_EQ(hit, VARIANT_FALSE);
    EXPECT_TRUE(rect);
    ExpectBoxes(boxes, 2);
    Ref<_CPt> pt;
    EXPECT_OK(element->PtIdent(trans.Get(), 5, 0, pt.Put()));
    EXPECT_FALSE(pt);
    ExpectBoxes(boxes, 3);
}

TEST_F(ElementHits, OfAnElementLateBound) {
    const MessageBoxes boxes{IDOK, IDOK, IDOK};
    const Dispatch late(element);
    Value rect = support::Create<CRect, _CRect>();
    EXPECT_FALSE(late.Call(L"ObjIdentByPt", {trans, 5, 0}).value.Bool());
    EXPECT_FALSE(late.Call(L"ObjIdentByRect", {trans, Value::Variable(rect)}).value.Bool());
    EXPECT_EQ(late.Call(L"PtIdent", {trans, 5, 0}).value.Object(), nullptr);
    ExpectBoxes(boxes, 3);
}

TEST_F(ElementHits, OfACollectionByTheVtable) {
    const MessageBoxes boxes{IDOK, IDOK, IDOK, IDOK, IDOK, IDOK, IDOK, IDOK, IDOK};
    Ref<_CSymElement> found = element;
    EXPECT_OK(elements->ObjIdentByPt(trans.Get(), 5, 0, found.Put()));
    EXPECT_FALSE(found);
    ExpectBoxes(boxes, 3);
    Ref<_CRect> rect = support::Create<CRect, _CRect>();
    Ref<_CSymElementColl> all;
    EXPECT_OK(elements->ObjIdentByRect(trans.Get(), rect.InOut(), all.Put()));
    EXPECT_FALSE(all);
    ExpectBoxes(boxes, 6);
    found = element;
    Ref<_CPt> pt = support::NewPt(1, 2);
    VARIANT_BOOL hit = 7;
    EXPECT_OK(elements->PtIdent(trans.Get(), 5, 0, found.InOut(), pt.InOut(), &hit));
    EXPECT_EQ(hit, VARIANT_FALSE);
    EXPECT_FALSE(found);
    EXPECT_FALSE(pt);
    ExpectBoxes(boxes, 9);
}

TEST_F(ElementHits, OfACollectionLateBound) {
    const MessageBoxes boxes{IDOK, IDOK, IDOK, IDOK, IDOK, IDOK, IDOK, IDOK, IDOK};
    const Dispatch late(elements);
    Value rect = support::Create<CRect, _CRect>();
    EXPECT_EQ(late.Call(L"ObjIdentByPt", {trans, 5, 0}).value.Object(), nullptr);
    EXPECT_EQ(late.Call(L"ObjIdentByRect", {trans, Value::Variable(rect)}).value.Object(), nullptr);
    Value found = element;
    Value pt;
    EXPECT_FALSE(
        late.Call(L"PtIdent", {trans, 5, 0, Value::Variable(found), Value::Variable(pt)}).value.Bool());
    EXPECT_EQ(found.Object(), nullptr);
    EXPECT_EQ(pt.Object(), nullptr);
    ExpectBoxes(boxes, 9);
}

TEST_F(ElementHits, OfAnEmptyCollectionAskNobody) {
    const MessageBoxes boxes{};
    const auto empty = support::NewElements({});
    Ref<_CSymElement> found = element;
    Ref<_CPt> pt = support::NewPt(1, 2);
    VARIANT_BOOL hit = 7;
    EXPECT_OK(empty->PtIdent(trans.Get(), 5, 0, found.InOut(), pt.InOut(), &hit));
    EXPECT_EQ(hit, VARIANT_FALSE);
    EXPECT_FALSE(found);
    EXPECT_FALSE(pt);
    EXPECT_OK(empty->ObjIdentByPt(trans.Get(), 5, 0, found.Put()));
    EXPECT_FALSE(found);
    ExpectBoxes(boxes, 0);
}

} // namespace
