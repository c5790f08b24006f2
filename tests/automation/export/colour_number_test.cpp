#include "colours/expected_colour.h"
#include "support/automation_test.h"
#include "support/shapes.h"

namespace {

using support::Dispatch;
using support::Ref;
using support::Value;

class ColourNumber : public support::AutomationTest {
protected:
    static LONG Colour(_CSymbol* symbol, SHORT number, bool editor) {
        LONG colour = -1;
        EXPECT_OK(symbol->GetColor2ColNr(number, editor ? VARIANT_TRUE : VARIANT_FALSE, &colour));
        return colour;
    }
};

TEST_F(ColourNumber, All512Entries) {
    const Ref<_CSymbol> symbol = support::NewSymbol();
    for (const bool editor : {false, true})
        for (int number = 0; number <= 255; ++number)
            EXPECT_EQ(Colour(symbol.Get(), static_cast<SHORT>(number), editor),
                      colours::ExpectedColour(number, editor))
                << number << (editor ? " in the editor" : " in a plan");
}

TEST_F(ColourNumber, NeverFails) {
    const Ref<_CSymbol> symbol = support::NewSymbol();
    for (const SHORT number : std::initializer_list<SHORT>{-32768, -1, 256, 32767})
        EXPECT_EQ(Colour(symbol.Get(), number, true), 0) << number;
}

TEST_F(ColourNumber, LateBound) {
    const Dispatch symbol = Dispatch::Create(L"QSymbol.CSymbol");
    const support::Answer answer = symbol.Call(L"GetColor2ColNr", {7, true});
    EXPECT_OK(answer.status);
    EXPECT_EQ(answer.value.Type(), VT_I4);
    EXPECT_EQ(answer.value.Long(), 0xFFFFFF);
    // A script passes variables, and any number but 0 is true.
    Value number = 250;
    EXPECT_EQ(symbol.Call(L"GetColor2ColNr", {Value::Variable(number), 0}).value.Long(), 0x585858);
    EXPECT_EQ(symbol.Call(L"GetColor2ColNr", {Value::Variable(number), 1}).value.Long(), 0);
}

} // namespace
