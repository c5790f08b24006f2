#include "dialog/dialog_fixture.h"

/// The preview box as a surface: what a symbol of the host's own may ask of it and do with it.

namespace {

using namespace dialog;
using namespace support;

HDC ContextOf(const Dispatch& box) {
    return reinterpret_cast<HDC>(static_cast<LONG_PTR>(box.Get(L"hDC").value.Long()));
}

class PreviewBox : public DialogTest {
protected:
    /// Runs a test of the box while the dialog lets a symbol draw into it.
    void Draw(std::function<void(const Dispatch& box)> test) {
        foreign_->OnFit([test = std::move(test)](IDispatch* box) { test(Dispatch(box)); });
        user.Press(IDCANCEL);
        EXPECT_EQ(Choose(), L"");
        EXPECT_EQ(foreign_->Fits(), 1);
        foreign_->OnFit({});
    }

    MessageBoxes none;

private:
    Ref<ForeignSymbol> foreign_ = AddForeign(L"Fremd");
};

TEST_F(PreviewBox, TellsWhatItIs) {
    Draw([](const Dispatch& box) {
        EXPECT_EQ(box.Get(L"Name").value.Text(), L"SymPict");
        EXPECT_GT(box.Get(L"ScaleWidth").value.Single(), 50);
        EXPECT_GT(box.Get(L"ScaleHeight").value.Single(), 50);
        EXPECT_EQ(GetObjectType(ContextOf(box)), static_cast<DWORD>(OBJ_MEMDC));
    });
}

TEST_F(PreviewBox, StartsWithAThinBlackPenAndNoFill) {
    Draw([](const Dispatch& box) {
        EXPECT_EQ(box.Get(L"DrawMode").value.Long(), 13);
        EXPECT_EQ(box.Get(L"DrawWidth").value.Long(), 1);
        EXPECT_EQ(box.Get(L"DrawStyle").value.Long(), 0);
        EXPECT_EQ(box.Get(L"ForeColor").value.Long(), 0);
        EXPECT_EQ(box.Get(L"FillStyle").value.Long(), 1);
        EXPECT_EQ(GetROP2(ContextOf(box)), R2_COPYPEN);
    });
}

TEST_F(PreviewBox, PropertiesActAtOnce) {
    Draw([](const Dispatch& box) {
        const HDC dc = ContextOf(box);
        EXPECT_OK(box.Put(L"forecolor", static_cast<LONG>(kRed)).status);
        EXPECT_EQ(box.Get(L"ForeColor").value.Long(), static_cast<LONG>(kRed));
        EXPECT_EQ(GetTextColor(dc), kRed);
        EXPECT_OK(box.Put(L"DrawWidth", 3).status);
        EXPECT_OK(box.Put(L"FillStyle", 0).status);
        EXPECT_OK(box.Put(L"FillColor", L"255").status);
        EXPECT_OK(box.Put(L"DrawMode", 7).status);
        EXPECT_EQ(GetROP2(dc), R2_XORPEN);
        LOGPEN pen{};
        GetObjectW(GetCurrentObject(dc, OBJ_PEN), sizeof pen, &pen);
        EXPECT_EQ(pen.lopnColor, kRed);
        EXPECT_EQ(pen.lopnWidth.x, 3);
        LOGBRUSH brush{};
        GetObjectW(GetCurrentObject(dc, OBJ_BRUSH), sizeof brush, &brush);
        EXPECT_EQ(brush.lbColor, RGB(255, 0, 0));
    });
}

TEST_F(PreviewBox, HasAllStylesOfPens) {
    Draw([](const Dispatch& box) {
        const std::pair<int, UINT> kStyles[] = {{0, PS_SOLID},      {1, PS_DASH},       {2, PS_DOT},
                                                {3, PS_DASHDOT},    {4, PS_DASHDOTDOT}, {5, PS_NULL},
                                                {6, PS_INSIDEFRAME}};
        for (const auto& [style, expected] : kStyles) {
            EXPECT_OK(box.Put(L"DrawStyle", style).status);
            LOGPEN pen{};
            GetObjectW(GetCurrentObject(ContextOf(box), OBJ_PEN), sizeof pen, &pen);
            EXPECT_EQ(pen.lopnStyle, expected) << style;
        }
    });
}

TEST_F(PreviewBox, RefusesWhatMeansNothing) {
    Draw([](const Dispatch& box) {
        for (const auto& [property, value] : {std::pair{L"DrawMode", 0},
                                              {L"DrawMode", 17},
                                              {L"DrawWidth", 0},
                                              {L"DrawStyle", 7},
                                              {L"DrawStyle", -1},
                                              {L"FillStyle", 8},
                                              {L"FillStyle", -1}}) {
            const Value before = box.Get(property).value;
            EXPECT_EQ(box.Put(property, value).status, Numbered(5)) << value;
            EXPECT_EQ(box.Get(property).value.Long(), before.Long()) << value;
        }
        EXPECT_EQ(box.Put(L"DrawWidth", L"breit").status, DISP_E_TYPEMISMATCH);
        EXPECT_EQ(box.Put(L"hDC", 5).status, DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(box.Get(L"DrawWidth", {1}).status, DISP_E_BADPARAMCOUNT);
        EXPECT_EQ(box.Id(L"Print"), DISPID_UNKNOWN);
    });
}

TEST_F(PreviewBox, DrawsLinesInBothForms) {
    Draw([](const Dispatch& box) {
        const HDC dc = ContextOf(box);
        EXPECT_OK(box.Put(L"ForeColor", static_cast<LONG>(kGreen)).status);
        EXPECT_OK(box.Call(L"Line", {10.0F, 5.0F, 30.0F, 5.0F}).status);
        EXPECT_EQ(GetPixel(dc, 20, 5), kGreen);
        EXPECT_OK(box.Call(L"Line", {SHORT{0}, 10.0F, 8.0F, 30.0F, 8.0F, static_cast<LONG>(kRed)}).status);
        EXPECT_EQ(GetPixel(dc, 20, 8), kRed);
        EXPECT_EQ(box.Get(L"ForeColor").value.Long(), static_cast<LONG>(kGreen));
        EXPECT_EQ(box.Call(L"Line", {1, 2}).status, DISP_E_BADPARAMCOUNT);
        EXPECT_EQ(box.Call(L"Line", {1, 2, 3, L"vier"}).status, DISP_E_TYPEMISMATCH);
    });
}

/// A symbol may leave the context as it likes.
TEST_F(PreviewBox, IsAsBeforeForTheNextSymbol) {
    const Ref<ForeignSymbol> next = AddForeign(L"Nächstes");
    user.Key(VK_DOWN);
    POINT first{};
    Draw([&](const Dispatch& box) {
        const HDC dc = ContextOf(box);
        GetViewportOrgEx(dc, &first);
        SetViewportOrgEx(dc, 1000, 1000, nullptr);
        SetTextAlign(dc, TA_BASELINE);
        IntersectClipRect(dc, 0, 0, 1, 1);
        next->OnFit([&](IDispatch* object) {
            const HDC again = ContextOf(Dispatch(object));
            POINT origin{};
            RECT clip{};
            GetViewportOrgEx(again, &origin);
            EXPECT_EQ(origin.x, first.x);
            EXPECT_EQ(origin.y, first.y);
            EXPECT_EQ(GetTextAlign(again), static_cast<UINT>(TA_LEFT));
            EXPECT_GT(GetClipBox(again, &clip), NULLREGION);
            EXPECT_GT(clip.right, 50);
        });
    });
    EXPECT_EQ(next->Fits(), 1);
    next->OnFit({});
}

/// The box outlives the dialog for one that keeps it.
TEST_F(PreviewBox, MayBeKept) {
    Ref<IDispatch> kept;
    Draw([&](const Dispatch& box) { kept = Ref<IDispatch>(box.Object()); });
    const Dispatch box(kept);
    EXPECT_OK(box.Put(L"ForeColor", 255).status);
    EXPECT_OK(box.Call(L"Line", {1, 1, 9, 1}).status);
    EXPECT_EQ(GetPixel(ContextOf(box), 5, 1), RGB(255, 0, 0));
}

} // namespace
