#include "support/automation_test.h"
#include "support/shapes.h"

namespace {

using support::Answer;
using support::Dispatch;
using support::Value;

class Arguments : public support::AutomationTest {
protected:
    Dispatch polygon = Dispatch::Create(L"QMath.CPolygon");
    Dispatch symbol = Dispatch::Create(L"QSymbol.CSymbol");
    Dispatch math = Dispatch::Create(L"QMath.CMathUtil");
    Dispatch text = Dispatch::Create(L"QMath.CStrUtil");

    void SetUp() override { ASSERT_TRUE(polygon && symbol && math && text); }
};

TEST_F(Arguments, ByName) {
    const Answer answer =
        text.Call(L"GetToken", {}, {{L"index", 2}, {L"separator", L";"}, {L"line", L"a;b;c"}});
    EXPECT_OK(answer.status);
    EXPECT_EQ(answer.value.Text(), L"b");
}

TEST_F(Arguments, ByPositionAndByName) {
    const Answer answer = text.Call(L"GetToken", {L"a;b;c"}, {{L"INDEX", 3}, {L"Separator", L";"}});
    EXPECT_OK(answer.status);
    EXPECT_EQ(answer.value.Text(), L"c") << "names are compared without regard to case";
}

TEST_F(Arguments, ByNameAndReference) {
    Value y = 0;
    double x = 1;
    EXPECT_OK(math.Call(L"RotatePoint", {Value::Variable(x)},
                        {{L"angle", 3.141592653589793}, {L"Y", Value::Variable(y)}})
                  .status);
    EXPECT_NEAR(x, -1, 1e-12);
    EXPECT_NEAR(y.Double(), 0, 1e-12);
}

TEST_F(Arguments, AnUnknownName) {
    EXPECT_EQ(text.Call(L"GetToken", {L"a", L";"}, {{L"number", 1}}).status, DISP_E_UNKNOWNNAME);
}

TEST_F(Arguments, ANamedArgumentThatWasGivenAlready) {
    const Answer twice = text.Call(L"GetToken", {L"a", L";"}, {{L"line", L"b"}});
    EXPECT_EQ(twice.status, DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(twice.argument, 0U);
    EXPECT_TRUE(FAILED(text.Call(L"GetToken", {L"a", L";", 1}, {{L"line", L"b"}}).status));
}

TEST_F(Arguments, TooMany) {
    EXPECT_EQ(math.Call(L"RadToDeg", {1.0, 2.0}).status, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(math.Call(L"Pi", {1}).status, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(symbol.Call(L"ReadFromFile", {L"x"}).status, DISP_E_BADPARAMCOUNT);
}

TEST_F(Arguments, TooFew) {
    EXPECT_EQ(math.Call(L"RadToDeg").status, DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(text.Call(L"GetToken", {L"a", L";"}).status, DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(text.Call(L"GetToken", {L"a", Value::Omitted(), 1}).status, DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(Arguments, TheWrongTypeIsNamed) {
    Answer answer = text.Call(L"GetToken", {L"a", L";", L"zwei"});
    EXPECT_EQ(answer.status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(answer.argument, 0U);
    answer = polygon.Call(L"RectTouches", {1, L"x", 3, 4});
    EXPECT_EQ(answer.status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(answer.argument, 2U);
    answer = polygon.Call(L"RectTouches", {1, 2}, {{L"Bottom", 4}, {L"Right", L"x"}});
    EXPECT_EQ(answer.status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(answer.argument, 1U);
    answer = polygon.Call(L"RectTouches", {1e10, 2, 3, 4});
    EXPECT_EQ(answer.status, DISP_E_OVERFLOW);
    EXPECT_EQ(answer.argument, 3U);
}

TEST_F(Arguments, AnObjectWhereANumberBelongs) {
    EXPECT_EQ(math.Call(L"RadToDeg", {Value::Nothing()}).status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(polygon.Call(L"SetPoints", {L"list"}).status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(polygon.Call(L"SetPoints", {support::NewPt(1, 2)}).status, DISP_E_TYPEMISMATCH);
}

TEST_F(Arguments, NumbersAndTextsAreConverted) {
    EXPECT_EQ(text.Call(L"GetToken", {123, 2, L"2"}).value.Text(), L"3");
    const Dispatch element(support::NewElement({}));
    EXPECT_OK(element.Put(L"LineClosed", 1).status);
    EXPECT_TRUE(element.Get(L"LineClosed").value.Bool());
    EXPECT_EQ(V_BOOL(element.Get(L"LineClosed").value.Raw()), VARIANT_TRUE);
    EXPECT_OK(element.Put(L"Radius", 2.5).status);
    EXPECT_EQ(element.Get(L"Radius").value.Long(), 2);
}

/// An optional by-reference parameter in its three forms.
TEST_F(Arguments, TheOptionalMarkColour) {
    const Value trans = support::NewTrans();
    const std::vector<Value> given = {0, 0, 0.0, Value::Nothing(), trans, 1.0, 1.0};
    EXPECT_OK(symbol.Call(L"Draw", given).status);
    std::vector<Value> omitted = given;
    omitted.push_back(Value::Omitted());
    EXPECT_OK(symbol.Call(L"Draw", omitted).status);
    Value colour = 255;
    std::vector<Value> present = given;
    present.push_back(Value::Variable(colour));
    EXPECT_OK(symbol.Call(L"Draw", present).status);
    EXPECT_EQ(colour.Long(), 255);
    EXPECT_OK(symbol.Call(L"Draw", given, {{L"lMarkColor", 7}}).status);
}

TEST_F(Arguments, NoArgumentBlockAtAll) {
    EXPECT_EQ(symbol.Object()->Invoke(symbol.Id(L"ReadFromFile"), IID_NULL, 0, DISPATCH_METHOD, nullptr,
                                      nullptr, nullptr, nullptr),
              E_INVALIDARG);
}

TEST_F(Arguments, ACallerWithoutPlacesForResultAndError) {
    DISPPARAMS none{};
    EXPECT_OK(math.Object()->Invoke(math.Id(L"Pi"), IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr,
                                    nullptr));
    EXPECT_EQ(symbol.Object()->Invoke(symbol.Id(L"ReadFromFile"), IID_NULL, 0, DISPATCH_METHOD, &none,
                                      nullptr, nullptr, nullptr),
              support::Numbered(3501));
    EXPECT_EQ(support::TakeErrorInfo().source, L"CSymbol.ReadFromFile");
}

TEST_F(Arguments, NullOfAScriptIsNothing) {
    const Answer answer = symbol.Call(L"CreateNew", {1, 2, 3, 4, Value::Null()});
    EXPECT_OK(answer.status) << "JScript has no other word for Nothing";
    EXPECT_EQ(symbol.Get(L"Height").value.Long(), 4);
}

} // namespace
