#include "support/automation_test.h"
#include "support/shapes.h"

namespace {

using support::Answer;
using support::Dispatch;
using support::Ref;
using support::Value;

class LateBoundMembers : public support::AutomationTest {
protected:
    Dispatch element = Dispatch::Create(L"QSymbol.CSymElement");
    Dispatch elements = Dispatch::Create(L"QSymbol.CSymElementColl");
    Dispatch symbol = Dispatch::Create(L"QSymbol.CSymbol");

    void SetUp() override { ASSERT_TRUE(element && elements && symbol); }
};

TEST_F(LateBoundMembers, AreFoundWithoutRegardToCase) {
    EXPECT_EQ(symbol.Id(L"filepath"), symbol.Id(L"FILEPATH"));
    EXPECT_NE(symbol.Id(L"FilePath"), DISPID_UNKNOWN);
}

TEST_F(LateBoundMembers, UnknownNames) {
    EXPECT_EQ(symbol.Call(L"Zeichne").status, DISP_E_UNKNOWNNAME);
    EXPECT_EQ(symbol.Id(L"ClearElements"), DISPID_UNKNOWN) << "internal operations are not published";
    EXPECT_EQ(symbol.Id(L"SetRefX"), DISPID_UNKNOWN);
}

TEST_F(LateBoundMembers, UnknownIdsAndKinds) {
    EXPECT_EQ(symbol.InvokeId(4711, DISPATCH_METHOD, {}).status, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(symbol.InvokeId(DISPID_VALUE, DISPATCH_PROPERTYGET, {}).status, DISP_E_MEMBERNOTFOUND)
        << "a symbol has no default member";
    EXPECT_EQ(symbol.Put(L"Name", L"x").status, DISP_E_MEMBERNOTFOUND) << "read only";
    EXPECT_EQ(symbol.Put(L"RefX", 1).status, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(symbol.Get(L"Etagenbreite").status, DISP_E_MEMBERNOTFOUND) << "write only";
    EXPECT_OK(symbol.Put(L"Etagenbreite", 1).status);
}

TEST_F(LateBoundMembers, TheReservedInterfaceIdMustBeNull) {
    wchar_t text[] = L"FilePath";
    LPOLESTR name = text;
    DISPID id = 0;
    EXPECT_EQ(symbol.Object()->GetIDsOfNames(IID_IDispatch, &name, 1, 0, &id), DISP_E_UNKNOWNINTERFACE);
    DISPPARAMS none{};
    Value result;
    EXPECT_EQ(symbol.Object()->Invoke(symbol.Id(L"FilePath"), IID_IDispatch, 0, DISPATCH_PROPERTYGET, &none,
                                      result.Raw(), nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
}

TEST_F(LateBoundMembers, AreCalledAsMethodOrProperty) {
    EXPECT_OK(element.Put(L"Radius", 7).status);
    EXPECT_EQ(element.Call(L"Radius").value.Long(), 7) << "a property as a method";
    EXPECT_EQ(element.CallOrGet(L"Radius").value.Long(), 7);
    EXPECT_OK(element.Get(L"Init").status) << "a method as a property";
    EXPECT_EQ(element.Get(L"Radius").value.Long(), 0);
    EXPECT_EQ(element.Get(L"Init").value.Type(), VT_EMPTY) << "it has no result";
}

TEST_F(LateBoundMembers, ObjectsArePutByValueOrByReference) {
    const Ref<_CPtList> list = support::NewPtList({{1, 2}});
    EXPECT_OK(element.PutRef(L"PtList", list).status);
    EXPECT_TRUE(support::SameObject(element.Get(L"PtList").value.Object(), list.Get()));
    const Ref<_CPtList> other = support::NewPtList({});
    EXPECT_OK(element.Put(L"PtList", other).status);
    EXPECT_TRUE(support::SameObject(element.Get(L"PtList").value.Object(), other.Get()));
    EXPECT_OK(element.PutRef(L"PtList", Value::Nothing()).status);
    EXPECT_EQ(element.Get(L"PtList").value.Object(), nullptr);
    EXPECT_EQ(element.PutRef(L"PtList", support::NewPt(1, 2)).status, DISP_E_TYPEMISMATCH);
}

TEST_F(LateBoundMembers, AValueIsAlsoPutByReference) {
    EXPECT_OK(element.PutRef(L"Radius", 5).status);
    EXPECT_EQ(element.Get(L"Radius").value.Long(), 5);
    Value variable = 6;
    EXPECT_OK(element.Put(L"Radius", Value::Variable(variable)).status);
    EXPECT_EQ(element.Get(L"Radius").value.Long(), 6);
}

TEST_F(LateBoundMembers, APropertyPutTakesOneValue) {
    EXPECT_EQ(
        element.InvokeId(element.Id(L"Radius"), DISPATCH_PROPERTYPUT, {1}, {DISPID_PROPERTYPUT}, {2}).status,
        DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(element.InvokeId(element.Id(L"Radius"), DISPATCH_PROPERTYPUT, {}).status,
              DISP_E_PARAMNOTOPTIONAL);
    const Answer answer = element.Put(L"Radius", L"groß");
    EXPECT_EQ(answer.status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(answer.argument, 0U);
}

TEST_F(LateBoundMembers, TheDefaultMemberIsTheItem) {
    Value first = support::NewElement({.radius = 3});
    const Value kept = first;
    EXPECT_OK(elements.Call(L"AppendRef", {Value::Variable(first)}).status);
    const Answer item = elements.InvokeId(DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {1});
    EXPECT_OK(item.status);
    EXPECT_TRUE(support::SameObject(item.value.Object(), kept.Object()));
    EXPECT_EQ(elements.Get(L"ItemByPos", {L"2"}).value.Object(), nullptr);

    const Dispatch points(support::NewPtList({{5, 6}}));
    const Dispatch pt(points.InvokeId(DISPID_VALUE, DISPATCH_PROPERTYGET, {1}).value.Object());
    EXPECT_EQ(pt.Get(L"X").value.Long(), 5);
}

TEST_F(LateBoundMembers, TheEnumeratorHasItsOwnId) {
    const Answer answer = elements.InvokeId(DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {});
    EXPECT_OK(answer.status);
    ASSERT_EQ(answer.value.Type(), VT_UNKNOWN);
    EXPECT_TRUE(Ref<IUnknown>(V_UNKNOWN(answer.value.Raw())).As<IEnumVARIANT>());
}

TEST_F(LateBoundMembers, ResultsHaveTheirPublishedTypes) {
    EXPECT_EQ(symbol.Get(L"Name").value.Type(), VT_BSTR);
    EXPECT_EQ(symbol.Get(L"Width").value.Type(), VT_I4);
    EXPECT_EQ(element.Get(L"TxtAngle").value.Type(), VT_R8);
    EXPECT_EQ(element.Get(L"LineClosed").value.Type(), VT_BOOL);
    EXPECT_EQ(element.Get(L"ElementType").value.Type(), VT_I4);
    EXPECT_EQ(element.Get(L"TxtFont").value.Type(), VT_DISPATCH);
    EXPECT_EQ(symbol.Call(L"GetSymElements").value.Type(), VT_DISPATCH);
}

} // namespace
