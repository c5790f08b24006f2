#include "drawing/drawing_fixture.h"
#include "support/message_boxes.h"

/// Draw2PBox: the whole symbol as large as the box allows, without a margin.

namespace {

using namespace drawing;
using support::ElementSpec;

/// A filled frame of the symbol's size and a line across it.
std::vector<ElementSpec> Frame(LONG width, LONG height) {
    return {{.type = symPoly,
             .points = {{0, 0}, {width, 0}, {width, height}, {0, height}},
             .closed = true,
             .fillColor = kGreen},
            {.type = symPoly, .points = {{0, 0}, {width, height}}, .mainColor = kRed}};
}

class FittedDrawing : public DrawingTest {
protected:
    void DrawFrame(LONG width, LONG height) {
        const auto symbol = support::NewSymbol(width / 3, height / 2, width, height, Frame(width, height));
        EXPECT_OK(symbol->Draw2PBox(box.Get()));
    }
    void ExpectFrame(int width, int height) {
        expected.UsePen(PS_NULL, 1, 0);
        expected.UseBrush(kGreen);
        Closed({{0, 0}, {width, 0}, {width, height}, {0, height}});
        expected.UsePen(PS_SOLID, 1, kRed);
        Line({{0, 0}, {width, height}});
        ExpectSame();
    }

    support::MessageBoxes none; ///< each box that is shown is a failure
};

TEST_F(FittedDrawing, AnEnlargedSymbol) {
    DrawFrame(24, 12);
    ExpectFrame(240, 120);
}

/// A copy in a catalogue has no size of its own; the extent of its points stands in.
TEST_F(FittedDrawing, ACopyWithoutASize) {
    const auto symbol = support::NewSymbol(500, 500, 1, 1, Frame(4800, 1000));
    EXPECT_OK(symbol->put_FilePath(support::Bstr(L"Rahmen.syb")));
    const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    EXPECT_OK(catalogue->Append(symbol.Get()));
    Ref<_CSymbol> copy;
    EXPECT_OK(catalogue->get_ItemByPos(1, copy.Put()));
    LONG width = -1;
    EXPECT_OK(copy->get_Width(&width));
    EXPECT_EQ(width, 0);
    EXPECT_OK(copy->Draw2PBox(box.Get()));
    ExpectFrame(240, 50);
}

TEST_F(FittedDrawing, AnEmptyBoxAnEmptySymbolAndNoBoxDrawNothing) {
    box->SetScale(0, 100);
    DrawFrame(100, 100);
    box->SetScale(100, 0);
    DrawFrame(100, 100);
    box->SetScale(0, 0);
    DrawFrame(100, 100);
    box->SetScale(240, 240);
    EXPECT_OK(support::NewSymbol()->Draw2PBox(box.Get()));
    EXPECT_OK(support::NewSymbol(0, 0, 100, 0, {{.type = symUndefined}})->Draw2PBox(box.Get()));
    EXPECT_OK(support::NewSymbol(0, 0, 10, 10, Frame(10, 10))->Draw2PBox(nullptr));
    ExpectNothingDrawn();
}

class FailingFittedDrawing : public DrawingTest {
protected:
    Ref<_CSymbol> symbol = support::NewSymbol(0, 0, 10, 10, Frame(10, 10));
};

TEST_F(FailingFittedDrawing, IsShownAndGoesNoFurther) {
    const support::MessageBoxes boxes{IDOK, IDOK, IDOK, IDOK, IDOK, IDOK, IDOK, IDOK};
    const support::Failure failure{support::Numbered(481), L"Gastgeber", L"Ungültiges Bild"};
    for (const char* access : {"get ScaleWidth", "get ScaleHeight", "get hDC", "get Name", "get DrawMode",
                               "put ForeColor", "put FillStyle"}) {
        StartAgain();
        box->Fail(access, failure);
        const HRESULT status = symbol->Draw2PBox(box.Get());
        EXPECT_EQ(support::Outcome(status), support::Failure{}) << access;
    }
    EXPECT_OK(support::Dispatch(symbol).Call(L"Draw2PBox", {box}).status);
    EXPECT_EQ(boxes.Seen(), std::vector(8, support::ErrorBox(L"CSymbol.Draw2PBox\r\nUngültiges Bild")));
}

TEST_F(FailingFittedDrawing, OnAnObjectThatIsNoBox) {
    const support::MessageBoxes boxes{IDOK};
    EXPECT_OK(symbol->Draw2PBox(symbol.Get()));
    EXPECT_EQ(boxes.Seen(),
              std::vector{support::ErrorBox(
                  L"CSymbol.Draw2PBox\r\nObjekt unterstützt diese Eigenschaft oder Methode nicht: "
                  L"CSymbol.ScaleWidth")});
}

} // namespace
