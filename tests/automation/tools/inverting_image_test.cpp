#include "tools/tool_fixture.h"

#include <vector>

namespace {

using support::Ref;

/// What stands on the surface while a tool is at work goes away without a trace, and what is fixed looks like
/// any other drawing of the symbol.
class InvertingImage : public tools::ToolTest {};

TEST_F(InvertingImage, OfASymbolGoesAwayAfterAnyMovesAndTurns) {
    const Ref<_CSymInput> input = InputFor(tools::EverySort());
    for (int step = 0; step < 250; ++step) {
        if (Random(0, 2) != 0) {
            EXPECT_OK(input->MouseMove(RandomPixel(), RandomPixel(), box.Get(), trans.Get()));
        } else {
            const SHORT key = kInputKeys[Random(0, std::size(kInputKeys) - 1)];
            EXPECT_OK(input->KeyUp(key, static_cast<SHORT>(Random(0, 2)), box.Get(), trans.Get()));
        }
        if (step % 10 != 0)
            continue;
        EXPECT_OK(input->MouseMove(120, 120, box.Get(), trans.Get()));
        EXPECT_FALSE(BackgroundIsUntouched()) << "no image in step " << step;
        EXPECT_OK(input->Draw(box.Get(), trans.Get()));
        ASSERT_TRUE(BackgroundIsUntouched()) << "traces in step " << step;
        EXPECT_OK(input->Draw(box.Get(), trans.Get()));
    }
}

TEST_F(InvertingImage, GoesAwayTogetherWithItsGuideLine) {
    const Ref<_CSymInput> input = InputFor(tools::EverySort());
    EXPECT_OK(input->SetOldLogPos(300, 2000));
    for (int step = 0; step < 50; ++step)
        EXPECT_OK(input->MouseMove(RandomPixel(), RandomPixel(), box.Get(), trans.Get()));
    EXPECT_FALSE(BackgroundIsUntouched());
    EXPECT_OK(input->Draw(box.Get(), trans.Get()));
    EXPECT_TRUE(BackgroundIsUntouched());
}

/// Surfaces with a picture box's own Line, and the plan's main drawing area.
TEST_F(InvertingImage, GoesAwayOnEverySortOfSurface) {
    StartAgain(L"GraphicBox");
    box->SetLineArguments(6);
    const Ref<_CSymInput> input = InputFor(tools::EverySort());
    EXPECT_OK(input->SetOldLogPos(300, 2000));
    EXPECT_OK(input->MouseMove(100, 90, box.Get(), trans.Get()));
    EXPECT_FALSE(BackgroundIsUntouched());
    EXPECT_OK(input->KeyUp(33, 0, box.Get(), trans.Get()));
    EXPECT_OK(input->Draw(box.Get(), trans.Get()));
    EXPECT_TRUE(BackgroundIsUntouched());
}

class InvertingGroup : public InvertingImage {
protected:
    InvertingGroup() {
        for (LONG i = 0; i < 3; ++i) {
            const Ref<_CSymbol>& symbol = symbols[static_cast<std::size_t>(i)];
            EXPECT_OK(tool->AddSymref(100 + i, i * 250 - 250, i * 130, i * 0.7, symbol.Get()));
        }
    }

    void MoveAndTurn(int steps) {
        for (int step = 0; step < steps; ++step) {
            EXPECT_OK(tool->MouseMove(RandomPixel(), RandomPixel(), box.Get(), trans.Get()));
            const SHORT key = kGroupKeys[Random(0, std::size(kGroupKeys) - 1)];
            EXPECT_OK(tool->KeyUp(key, 0, box.Get(), trans.Get()));
        }
        EXPECT_OK(tool->MouseMove(130, 110, box.Get(), trans.Get()));
        EXPECT_FALSE(BackgroundIsUntouched());
    }
    /// Draws every reference plainly where the tool says it stands.
    void DrawGroupPlainly() {
        for (LONG i = 1; i <= 3; ++i) {
            LONG id = 0;
            LONG x = 0;
            LONG y = 0;
            double angle = 0;
            EXPECT_OK(tool->GetSymrefDataByPos(i, &id, &x, &y, &angle));
            DrawPlainly(symbols[static_cast<std::size_t>(id - 100)], x, y, angle);
        }
    }

    std::vector<Ref<_CSymbol>> symbols{tools::EverySort(), tools::LinesOnly(), tools::EverySort()};
    Ref<_CSymTool> tool = support::Create<CSymTool, _CSymTool>();
};

TEST_F(InvertingGroup, GoesAwayAfterAnyMovesAndTurns) {
    for (int round = 0; round < 10; ++round) {
        MoveAndTurn(8);
        EXPECT_OK(tool->Draw(box.Get(), trans.Get()));
        ASSERT_TRUE(BackgroundIsUntouched()) << "round " << round;
        EXPECT_OK(tool->Draw(box.Get(), trans.Get()));
    }
}

TEST_F(InvertingGroup, IsGoneWithTheClickAndThenLooksLikePlainDraws) {
    EXPECT_OK(tool->SetMoveStartPos(0, 0));
    MoveAndTurn(5);
    EXPECT_OK(tool->MouseDown(110, 120, box.Get(), trans.Get()));
    EXPECT_TRUE(BackgroundIsUntouched());
    EXPECT_OK(tool->Draw(box.Get(), trans.Get()));
    DrawGroupPlainly();
    ExpectSame();
}

TEST_F(InvertingGroup, IsGoneWhenFixedAtCoordinates) {
    EXPECT_OK(tool->SetMoveStartPos(500, 500));
    MoveAndTurn(5);
    VARIANT_BOOL relative = VARIANT_TRUE;
    EXPECT_OK(tool->MouseDownReal(400, 300, box.Get(), trans.Get(), &relative));
    EXPECT_TRUE(BackgroundIsUntouched());
    EXPECT_OK(tool->Draw(box.Get(), trans.Get()));
    DrawGroupPlainly();
    ExpectSame();
}

/// The click leaves the inverted image for the host to draw over.
TEST_F(InvertingImage, FixedLooksLikeAPlainDraw) {
    const Ref<_CSymbol> symbol = tools::EverySort();
    const Ref<_CSymInput> input = InputFor(symbol);
    EXPECT_OK(input->SetOldLogPos(0, 0));
    EXPECT_OK(input->MouseMove(30, 40, box.Get(), trans.Get()));
    EXPECT_OK(input->KeyUp(33, 0, box.Get(), trans.Get()));
    EXPECT_OK(input->MouseDown(110, 100, box.Get(), trans.Get()));
    LONG x = 0;
    LONG y = 0;
    double angle = 0;
    EXPECT_OK(input->get_PosX(&x));
    EXPECT_OK(input->get_PosY(&y));
    EXPECT_OK(input->get_Angle(&angle));
    EXPECT_EQ(x, view.offsetX + 1100);
    EXPECT_EQ(y, view.offsetY + 1000);
    StartAgain(); // the host paints its background anew
    EXPECT_OK(input->Draw(box.Get(), trans.Get()));
    DrawPlainly(symbol, x, y, angle);
    ExpectSame();
}

/// Lines and fills in their own colours cover every pixel of their inverted image.
TEST_F(InvertingImage, OfLinesIsCoveredByTheFixedSymbol) {
    const Ref<_CSymbol> symbol = tools::LinesOnly();
    const Ref<_CSymInput> input = InputFor(symbol);
    EXPECT_OK(input->MouseMove(30, 40, box.Get(), trans.Get()));
    EXPECT_OK(input->KeyUp(38, 0, box.Get(), trans.Get()));
    EXPECT_OK(input->MouseDown(110, 100, box.Get(), trans.Get()));
    EXPECT_OK(input->Draw(box.Get(), trans.Get()));
    double angle = 0;
    EXPECT_OK(input->get_Angle(&angle));
    DrawPlainly(symbol, view.offsetX + 1100, view.offsetY + 1000, angle);
    ExpectSame();
}

/// The host's pen comes back after every event, and the device context has no font or brush of ours left.
TEST_F(InvertingImage, LeavesTheHostsPen) {
    const Ref<_CSymInput> input = InputFor(tools::EverySort());
    const wchar_t* const names[] = {L"DrawMode", L"DrawWidth", L"DrawStyle", L"ForeColor", L"FillStyle"};
    const LONG values[] = {7, 3, 2, 0x123456, 4};
    for (std::size_t i = 0; i < std::size(names); ++i)
        box->SetProperty(names[i], values[i]);
    const HGDIOBJ font = GetCurrentObject(drawn.Dc(), OBJ_FONT);
    EXPECT_OK(input->MouseMove(30, 40, box.Get(), trans.Get()));
    EXPECT_OK(input->KeyUp(33, 0, box.Get(), trans.Get()));
    EXPECT_OK(input->MouseDown(110, 100, box.Get(), trans.Get()));
    EXPECT_OK(input->Draw(box.Get(), trans.Get()));
    for (std::size_t i = 0; i < std::size(names); ++i)
        EXPECT_EQ(box->Property(names[i]), values[i]) << i;
    EXPECT_EQ(GetCurrentObject(drawn.Dc(), OBJ_FONT), font);
}

} // namespace
