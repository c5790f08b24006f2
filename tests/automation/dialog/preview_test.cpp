#include "dialog/dialog_fixture.h"
#include "support/picture_box.h"

#include <optional>

/// What the preview shows: exactly what Draw2PBox draws, white around, kept in a picture of its own.

namespace {

using namespace dialog;
using namespace support;

/// A drawing in which every edge and corner shows.
std::vector<ElementSpec> Crossed(LONG width, LONG height) {
    return {{.type = symPoly,
             .points = {{0, 0}, {width, 0}, {width, height}, {0, height}},
             .closed = true,
             .fillColor = kGreen,
             .mainColor = kRed},
            {.type = symPoly,
             .points = {{0, 0}, {0, height}, {width, height}, {width, 0}, {0, 0}, {width, height}},
             .mainColor = kRed},
            {.type = symCircle,
             .points = {{width / 2, height / 2}},
             .fillColor = RGB(255, 200, 0),
             .radius = height / 4},
            {.type = symText, .points = {{width / 4, height / 4}}, .text = L"Größe", .font = FontSpec{}}};
}

/// What a symbol of the host's own sees of the box.
struct BoxSeen {
    double width = 0;
    double height = 0;
    POINT origin{};
};

BoxSeen Look(IDispatch* box) {
    const Dispatch surface(box);
    BoxSeen seen;
    seen.width = surface.Get(L"ScaleWidth").value.Single();
    seen.height = surface.Get(L"ScaleHeight").value.Single();
    const auto dc = reinterpret_cast<HDC>(static_cast<LONG_PTR>(surface.Get(L"hDC").value.Long()));
    GetViewportOrgEx(dc, &seen.origin);
    return seen;
}

class Preview : public DialogTest {
protected:
    void Show(DialogUser::Action look) {
        user.Do(std::move(look));
        user.Press(IDCANCEL);
        EXPECT_EQ(Choose(), L"");
    }

    MessageBoxes none;
};

TEST_F(Preview, IsExactlyWhatTheSymbolDraws) {
    for (const SIZE size : {SIZE{4000, 1000}, SIZE{1000, 4000}, SIZE{3000, 2900}, SIZE{7, 5}}) {
        EXPECT_OK(catalogue->Clear());
        const Ref<ForeignSymbol> foreign = AddForeign(L"Fremd", size.cx, size.cy);
        Add(L"Eigen", size.cx, size.cy, Crossed(size.cx, size.cy));
        Ref<_CSymbol> own;
        EXPECT_OK(catalogue->get_ItemByPos(2, own.Put()));
        std::optional<BoxSeen> seen;
        foreign->OnFit([&](IDispatch* box) { seen = Look(box); });
        user.Key(VK_DOWN);
        Show([&](const SelectionDialog& dialog) {
            ASSERT_TRUE(seen);
            const SIZE area = PreviewSize(dialog);
            Canvas shown(area.cx, area.cy);
            PaintPreview(dialog, shown);

            Canvas expected(area.cx, area.cy);
            RECT whole{0, 0, area.cx, area.cy};
            FillRect(expected.Dc(), &whole, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
            FrameRect(expected.Dc(), &whole, GetSysColorBrush(COLOR_3DSHADOW));
            const Ref<PictureBox> box = PictureBox::Create(expected, L"SymPict");
            box->SetScale(seen->width, seen->height);
            SetViewportOrgEx(expected.Dc(), seen->origin.x + 1, seen->origin.y + 1, nullptr);
            EXPECT_OK(own->Draw2PBox(box.Get()));
            SetViewportOrgEx(expected.Dc(), 0, 0, nullptr);
            EXPECT_TRUE(SamePicture(shown, expected)) << size.cx << " by " << size.cy;
        });
    }
}

TEST_F(Preview, StandsInTheMiddleWithAMarginAndNothingIsCut) {
    for (const SIZE size : {SIZE{4000, 1000}, SIZE{1000, 4000}, SIZE{3000, 3000}}) {
        EXPECT_OK(catalogue->Clear());
        Add(L"Rahmen", size.cx, size.cy,
            {{.type = symPoly,
              .points = {{0, 0}, {size.cx, 0}, {size.cx, size.cy}, {0, size.cy}, {0, 0}},
              .mainColor = kRed}});
        Show([&](const SelectionDialog& dialog) {
            const SIZE area = PreviewSize(dialog);
            Canvas shown(area.cx, area.cy);
            PaintPreview(dialog, shown);
            const RECT drawn = Drawn(shown);
            const LONG left = drawn.left;
            const LONG right = area.cx - drawn.right;
            const LONG top = drawn.top;
            const LONG bottom = area.cy - drawn.bottom;
            EXPECT_NEAR(left, right, 1);
            EXPECT_NEAR(top, bottom, 1);
            EXPECT_GE(std::min(std::min(left, right), std::min(top, bottom)), 3);
            EXPECT_LE(std::min(left, top), 12) << "it fills the box in one direction";
            // All four edges of the frame are there, from end to end.
            const std::vector<std::uint32_t> pixels = shown.Pixels();
            const auto at = [&](LONG x, LONG y) { return pixels[static_cast<std::size_t>(y * area.cx + x)]; };
            for (LONG x = drawn.left; x < drawn.right; ++x) {
                EXPECT_NE(at(x, drawn.top), 0xFFFFFFU);
                EXPECT_NE(at(x, drawn.bottom - 1), 0xFFFFFFU);
            }
            for (LONG y = drawn.top; y < drawn.bottom; ++y) {
                EXPECT_NE(at(drawn.left, y), 0xFFFFFFU);
                EXPECT_NE(at(drawn.right - 1, y), 0xFFFFFFU);
            }
        });
    }
}

TEST_F(Preview, IsEmptyWithoutASymbol) {
    Add({L"Bett", L"Tisch"});
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_OK(catalogue->RemoveOnIndex(Bstr(L"Tisch")));
        dialog.Key(VK_DOWN);
    });
    Show([](const SelectionDialog& dialog) {
        const SIZE area = PreviewSize(dialog);
        Canvas shown(area.cx, area.cy);
        PaintPreview(dialog, shown);
        const RECT drawn = Drawn(shown);
        EXPECT_TRUE(IsRectEmpty(&drawn));
        EXPECT_EQ(dialog.Text(kWidth), L"");
        EXPECT_EQ(dialog.Text(kHeight), L"");
    });
}

/// Painting takes the picture; the symbol is asked once for each time that it is selected.
TEST_F(Preview, IsRepaintedFromItsPicture) {
    const Ref<ForeignSymbol> foreign = AddForeign(L"Fremd");
    foreign->OnFit([](IDispatch* box) {
        const LONG dc = Dispatch(box).Get(L"hDC").value.Long();
        PatBlt(reinterpret_cast<HDC>(static_cast<LONG_PTR>(dc)), 10, 10, 20, 20, BLACKNESS);
    });
    Show([&](const SelectionDialog& dialog) {
        const SIZE area = PreviewSize(dialog);
        Canvas first(area.cx, area.cy);
        PaintPreview(dialog, first);
        EXPECT_EQ(foreign->Fits(), 1);
        const HWND preview = dialog.Control(kPreview);
        RedrawWindow(preview, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        Canvas again(area.cx, area.cy);
        PaintPreview(dialog, again);
        EXPECT_TRUE(SamePicture(again, first));
        const RECT drawn = Drawn(first);
        EXPECT_FALSE(IsRectEmpty(&drawn));
        EXPECT_EQ(foreign->Fits(), 1);
    });
}

TEST_F(Preview, IsDrawnAnewInANewSize) {
    Add(L"Rahmen", 3000, 2900, Crossed(3000, 2900));
    Show([](const SelectionDialog& dialog) {
        RECT window{};
        GetWindowRect(dialog.Window(), &window);
        const SIZE before = PreviewSize(dialog);
        Canvas small(before.cx, before.cy);
        PaintPreview(dialog, small);
        dialog.Resize({window.right - window.left + 150, window.bottom - window.top + 120});
        const SIZE after = PreviewSize(dialog);
        EXPECT_EQ(after.cy - before.cy, 120);
        Canvas large(after.cx, after.cy);
        PaintPreview(dialog, large);
        const RECT smallDrawn = Drawn(small);
        const RECT largeDrawn = Drawn(large);
        EXPECT_EQ((largeDrawn.bottom - largeDrawn.top) - (smallDrawn.bottom - smallDrawn.top), 120);
    });
}

TEST_F(Preview, ChangesWithTheSelection) {
    const auto frame = [](LONG width, LONG height) { // the text of the other drawing is wider than the symbol
        return std::vector{Crossed(width, height).front()};
    };
    Add(L"Breit", 4000, 1000, frame(4000, 1000));
    Add(L"Hoch", 1000, 4000, frame(1000, 4000));
    RECT wide{};
    user.Do([&](const SelectionDialog& dialog) {
        const SIZE area = PreviewSize(dialog);
        Canvas shown(area.cx, area.cy);
        PaintPreview(dialog, shown);
        wide = Drawn(shown);
    });
    user.Key(VK_DOWN);
    Show([&](const SelectionDialog& dialog) {
        const SIZE area = PreviewSize(dialog);
        Canvas shown(area.cx, area.cy);
        PaintPreview(dialog, shown);
        const RECT tall = Drawn(shown);
        EXPECT_GT(wide.right - wide.left, 3 * (wide.bottom - wide.top));
        EXPECT_GT(tall.bottom - tall.top, 3 * (tall.right - tall.left)) << "nothing of the first one is left";
    });
}

/// A symbol that runs the host's message loop while it draws, and so gets replaced in the middle.
TEST_F(Preview, ASelectionInsideAnotherOneWins) {
    const Ref<ForeignSymbol> slow = AddForeign(L"Langsam", 50, 60);
    AddForeign(L"Schnell", 70, 80);
    HWND list = nullptr;
    user.Do([&](const SelectionDialog& dialog) {
        list = dialog.Control(kList);
        slow->OnFit([&](IDispatch*) {
            SendMessageW(list, LB_SETCURSEL, 1, 0);
            SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(kList, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(list));
        });
        dialog.ClickEntry(0);
    });
    Show([](const SelectionDialog& dialog) {
        EXPECT_EQ(dialog.SelectedEntry(), L"Schnell");
        EXPECT_EQ(dialog.Text(kWidth).substr(0, 3), L"0.7");
    });
}

TEST_F(Preview, TheSizeMayChangeWhileASymbolDraws) {
    const Ref<ForeignSymbol> foreign = AddForeign(L"Fremd", 3000, 2900);
    std::vector<BoxSeen> seen;
    foreign->OnFit([&](IDispatch* box) {
        seen.push_back(Look(box));
        if (seen.size() == 2)
            SetWindowPos(GetActiveWindow(), nullptr, 0, 0, 700, 600, SWP_NOMOVE | SWP_NOZORDER);
    });
    user.Do([](const SelectionDialog& dialog) { dialog.ClickEntry(0); });
    user.Do([](const SelectionDialog& dialog) {
        SendMessageW(dialog.Window(), WM_COMMAND, MAKEWPARAM(kList, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(dialog.Control(kList)));
    });
    Show([&](const SelectionDialog& dialog) {
        ASSERT_GE(seen.size(), 3U);
        const SIZE area = PreviewSize(dialog);
        EXPECT_GT(seen.back().height, area.cy - 30) << "the last drawing is for the size that is shown";
        EXPECT_LT(seen.back().height, area.cy);
    });
}

} // namespace
