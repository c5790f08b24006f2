#include "drawing/drawing_fixture.h"
#include "drawing/message_boxes.h"

/// The hit tests of elements say that they are not implemented; those of collections ask each element.

namespace {

using namespace drawing;
using support::Dispatch;
using support::Value;

class ElementHits : public support::AutomationTest {
protected:
    void ExpectBoxes(std::size_t count) const {
        EXPECT_EQ(boxes.Shown(),
                  std::vector(count, OkBox(L"Funktion noch nicht implementiert!", "information")));
    }

    MessageBoxes boxes;
    Ref<_CTrans> trans = support::NewTrans();
    support::ElementSpec line{.type = symPoly, .points = {{0, 0}, {10, 0}, {10, 10}}};
    Ref<_CSymElement> element = support::NewElement(line);
    Ref<_CSymElementColl> elements = support::NewElements({line, line, line});
};

TEST_F(ElementHits, OfAnElementByTheVtable) {
    VARIANT_BOOL hit = 7;
    EXPECT_OK(element->ObjIdentByPt(trans.Get(), 5, 0, &hit));
    EXPECT_EQ(hit, VARIANT_FALSE);
    ExpectBoxes(1);
    hit = 7;
    Ref<_CRect> rect = support::Create<CRect, _CRect>();
    EXPECT_OK(element->ObjIdentByRect(trans.Get(), rect.InOut(), &hit));
    EXPECT_EQ(hit, VARIANT_FALSE);
    EXPECT_TRUE(rect);
    ExpectBoxes(2);
    Ref<_CPt> pt;
    EXPECT_OK(element->PtIdent(trans.Get(), 5, 0, pt.Put()));
    EXPECT_FALSE(pt);
    ExpectBoxes(3);
}

TEST_F(ElementHits, OfAnElementLateBound) {
    const Dispatch late(element);
    Value rect = support::Create<CRect, _CRect>();
    EXPECT_FALSE(late.Call(L"ObjIdentByPt", {trans, 5, 0}).value.Bool());
    EXPECT_FALSE(late.Call(L"ObjIdentByRect", {trans, Value::Variable(rect)}).value.Bool());
    EXPECT_EQ(late.Call(L"PtIdent", {trans, 5, 0}).value.Object(), nullptr);
    ExpectBoxes(3);
}

TEST_F(ElementHits, OfACollectionByTheVtable) {
    Ref<_CSymElement> found = element;
    EXPECT_OK(elements->ObjIdentByPt(trans.Get(), 5, 0, found.Put()));
    EXPECT_FALSE(found);
    ExpectBoxes(3);
    Ref<_CRect> rect = support::Create<CRect, _CRect>();
    Ref<_CSymElementColl> all;
    EXPECT_OK(elements->ObjIdentByRect(trans.Get(), rect.InOut(), all.Put()));
    EXPECT_FALSE(all);
    ExpectBoxes(6);
    found = element;
    Ref<_CPt> pt = support::NewPt(1, 2);
    VARIANT_BOOL hit = 7;
    EXPECT_OK(elements->PtIdent(trans.Get(), 5, 0, found.InOut(), pt.InOut(), &hit));
    EXPECT_EQ(hit, VARIANT_FALSE);
    EXPECT_FALSE(found);
    EXPECT_FALSE(pt);
    ExpectBoxes(9);
}

TEST_F(ElementHits, OfACollectionLateBound) {
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
    ExpectBoxes(9);
}

TEST_F(ElementHits, OfAnEmptyCollectionAskNobody) {
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
    ExpectBoxes(0);
}

} // namespace
