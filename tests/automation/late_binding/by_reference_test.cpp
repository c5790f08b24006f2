#include "support/automation_test.h"
#include "support/shapes.h"

namespace {

using support::Answer;
using support::Dispatch;
using support::Ref;
using support::Value;

/// CTrans.WorldToScreen(ref long, ref long) at one pixel for two units: (20, 31) becomes (10, 16).
class ByReference : public support::AutomationTest {
protected:
    Answer WorldToScreen(const Value& x, const Value& y) const {
        return trans.Call(L"WorldToScreen", {x, y});
    }

    Dispatch trans{support::NewTrans(2)};
};

TEST_F(ByReference, VariablesWithoutAType) {
    Value x = 20;
    Value y = 31;
    EXPECT_OK(WorldToScreen(Value::Variable(x), Value::Variable(y)).status);
    EXPECT_EQ(x.Long(), 10);
    EXPECT_EQ(y.Long(), 16);
}

TEST_F(ByReference, VariablesThatHoldAnotherType) {
    Value x = static_cast<SHORT>(20);
    Value y = L"31";
    EXPECT_OK(WorldToScreen(Value::Variable(x), Value::Variable(y)).status);
    EXPECT_EQ(x.Long(), 10);
    EXPECT_EQ(y.Long(), 16);

    Value real = 20.4; // converted as an assignment would
    Value flag = true; // -1
    EXPECT_OK(WorldToScreen(Value::Variable(real), Value::Variable(flag)).status);
    EXPECT_EQ(real.Long(), 10);
    EXPECT_EQ(flag.Long(), 0) << "-0.5 goes to the even neighbour";
}

TEST_F(ByReference, AnEmptyVariableIsZero) {
    Value x;
    Value y;
    const Dispatch moved(support::NewTrans(1, -7, -8));
    EXPECT_OK(moved.Call(L"WorldToScreen", {Value::Variable(x), Value::Variable(y)}).status);
    EXPECT_EQ(x.Long(), 7);
    EXPECT_EQ(y.Long(), 8);
}

TEST_F(ByReference, AVariableThatRefersToAnother) {
    Value innerX = 20;
    Value x = Value::Variable(innerX);
    Value outerX = Value::Variable(x);
    LONG innerY = 31;
    Value y = Value::Variable(innerY);
    EXPECT_OK(WorldToScreen(Value::Variable(outerX), Value::Variable(y)).status);
    EXPECT_EQ(innerX.Long(), 10);
    EXPECT_EQ(innerY, 16);
    EXPECT_EQ(x.Type(), VT_BYREF | VT_VARIANT) << "the variables in between stay references";
}

TEST_F(ByReference, VariablesOfTheExactType) {
    LONG x = 20;
    LONG y = 31;
    EXPECT_OK(WorldToScreen(Value::Variable(x), Value::Variable(y)).status);
    EXPECT_EQ(x, 10);
    EXPECT_EQ(y, 16);
}

TEST_F(ByReference, VariablesOfAnotherType) {
    SHORT narrow = 20;
    LONGLONG wide = 31;
    EXPECT_OK(WorldToScreen(Value::Variable(narrow), Value::Variable(wide)).status);
    EXPECT_EQ(narrow, 10);
    EXPECT_EQ(wide, 16);

    double real = 20;
    support::Bstr text(L"31");
    EXPECT_OK(WorldToScreen(Value::Variable(real), Value::Variable(text.InOut())).status);
    EXPECT_EQ(real, 10);
    EXPECT_EQ(text.Text(), L"16");
}

TEST_F(ByReference, AResultThatDoesNotFitTheVariable) {
    const Dispatch enlarging(support::NewTrans(0.0001));
    SHORT x = 20;
    LONG y = 31;
    EXPECT_EQ(enlarging.Call(L"WorldToScreen", {Value::Variable(x), Value::Variable(y)}).status,
              DISP_E_OVERFLOW);
    EXPECT_EQ(x, 20);
}

TEST_F(ByReference, ValuesAreTakenWithoutGivingBack) {
    const Value x = 20;
    EXPECT_OK(WorldToScreen(x, 31).status);
    EXPECT_EQ(x.Long(), 20);
}

TEST_F(ByReference, ANullReferenceIsRefused) {
    LONG y = 0;
    const Answer answer = WorldToScreen(Value::Reference(VT_I4, nullptr), Value::Variable(y));
    EXPECT_EQ(answer.status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(answer.argument, 1U) << "arguments are counted from the last";
}

TEST_F(ByReference, DoublesAndSingles) {
    const Dispatch math = Dispatch::Create(L"QMath.CMathUtil");
    double x = 1;
    float y = 0;
    EXPECT_OK(math.Call(L"RotatePoint", {Value::Variable(x), Value::Variable(y), 1.5707963267948966}).status);
    EXPECT_NEAR(x, 0, 1e-12);
    EXPECT_EQ(y, 1.0F);
}

/// CTrans.PtWorldToScreen(ref CPt).
class ObjectByReference : public ByReference {
protected:
    Ref<_CPt> pt = support::NewPt(20, 31);

    void ExpectConverted(const Value& argument) const {
        const Answer answer = trans.Call(L"PtWorldToScreen", {argument});
        EXPECT_OK(answer.status);
        EXPECT_EQ(support::At(pt.Get()), (POINT{10, 16}));
    }
};

TEST_F(ObjectByReference, AVariableWithoutAType) {
    Value variable = pt;
    ExpectConverted(Value::Variable(variable));
    EXPECT_TRUE(support::SameObject(variable.Object(), pt.Get())) << "the variable still holds the object";
}

TEST_F(ObjectByReference, AVariableOfAnObjectType) {
    Ref<IDispatch> variable = pt.As<IDispatch>();
    ExpectConverted(Value::Variable(variable));
    EXPECT_TRUE(support::SameObject(variable.Get(), pt.Get()));
}

TEST_F(ObjectByReference, AVariableOfTheUnknownInterface) {
    Ref<IUnknown> variable = pt.As<IUnknown>();
    ExpectConverted(Value::Reference(VT_UNKNOWN, variable.InOut()));
    EXPECT_TRUE(support::SameObject(variable.Get(), pt.Get()));
}

TEST_F(ObjectByReference, ByValue) {
    ExpectConverted(Value(pt));
}

TEST_F(ObjectByReference, AnObjectOfAnotherClass) {
    Value variable = support::NewTrans();
    Answer answer = trans.Call(L"PtWorldToScreen", {Value::Variable(variable)});
    EXPECT_EQ(answer.status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(answer.argument, 0U);
    answer = trans.Call(L"PtWorldToScreen", {20});
    EXPECT_EQ(answer.status, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(answer.argument, 0U);
}

TEST_F(ObjectByReference, Nothing) {
    Value variable = Value::Nothing();
    EXPECT_EQ(trans.Call(L"PtWorldToScreen", {Value::Variable(variable)}).failure,
              support::RunTimeError(91, L"QMath"));
}

} // namespace
