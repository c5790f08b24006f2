#include "drawing/drawing_fixture.h"
#include "support/foreign_symbol.h"
#include "support/servers.h"
#include "support/temp_folder.h"

/// Which objects the library takes for its own: neither those of another copy of it nor those that say so.

namespace {

using support::ForeignSymbol;
using support::Ref;

class Identity : public drawing::DrawingTest {
protected:
    /// Draws the symbol with a placing tool.
    void Place(_CSymbol* symbol) const {
        const auto tool = support::Create<CSymTool, _CSymTool>();
        EXPECT_OK(tool->AddSymref(1, 0, 0, 0, symbol));
        EXPECT_OK(tool->MouseMove(20, 30, box.Get(), support::NewTrans().Get()));
    }
};

TEST_F(Identity, IsNotTheClassId) {
    void* object = &object;
    EXPECT_EQ(support::NewSymbol()->QueryInterface(CLSID_CSymbol, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(Identity, AnObjectThatClaimsTheClassDrawsItself) {
    const auto claiming = ForeignSymbol::Create(L"Fremd");
    claiming->ClaimToBe(CLSID_CSymbol);
    const auto easy = ForeignSymbol::Create(L"Gefällig");
    easy->ClaimToBeAnything();
    for (const auto& foreign : {claiming, easy}) {
        Place(foreign.Get());
        EXPECT_EQ(foreign->Draws().size(), 1U);
    }
}

TEST_F(Identity, AnObjectThatHandsQuestionsOnToOneOfOursDrawsItself) {
    const auto foreign = ForeignSymbol::Create(L"Hülle");
    const auto inner = support::NewSymbol(0, 0, 9, 9, {{.type = symCircle, .points = {{4, 4}}, .radius = 4}});
    foreign->HandQuestionsOnTo(inner.Get());
    Place(foreign.Get());
    EXPECT_EQ(foreign->Draws().size(), 1U);
}

/// A host may load two builds, or one twice.
TEST_F(Identity, ASecondCopyOfTheLibraryIsAnother) {
    const support::TempFolder folder;
    const std::wstring path = folder / L"QSymbol.dll";
    ASSERT_NE(CopyFileW(support::QSymbolServer().Path().c_str(), path.c_str(), TRUE), FALSE);
    const support::Server copy(path);
    ASSERT_TRUE(copy.Loaded());
    {
        Ref<_CSymbol> symbol;
        ASSERT_OK(copy.Factory(CLSID_CSymbol)->CreateInstance(nullptr, __uuidof(_CSymbol), symbol.PutVoid()));
        const auto elements =
            support::NewElements({{.type = symPoly, .points = {{1, 1}, {90, 1}, {90, 90}}, .lineWidth = 3}});
        EXPECT_OK(symbol->CreateNew(0, 0, 90, 90, elements.Get()));
        EXPECT_EQ(support::QSymbolServer().CanUnloadNow(), S_FALSE); // the elements
        EXPECT_EQ(copy.CanUnloadNow(), S_FALSE);
        Place(symbol.Get());
        EXPECT_TRUE(support::IsDrawnOn(drawn));
        // Its draw factors are those of its own copy: it has drawn itself.
        Ref<_CRect> bounds;
        EXPECT_OK(symbol->GetBoundingRect(0, 0, 0, bounds.InOut()));
        LONG right = 0;
        EXPECT_OK(bounds->get_Right(&right));
        EXPECT_EQ(right, 90);
    }
    EXPECT_EQ(copy.CanUnloadNow(), S_OK);
}

} // namespace
