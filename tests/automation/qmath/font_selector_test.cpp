#include "support/automation_test.h"

namespace {

using support::Bstr;
using support::Outcome;
using support::Ref;

class FontSelector : public support::AutomationTest {
protected:
    FontSelector() : context(CreateCompatibleDC(nullptr)), before(GetCurrentObject(context, OBJ_FONT)) {}
    ~FontSelector() override { DeleteDC(context); }

    HRESULT Select(const Ref<_CFontSelector>& with, LONG height, LONG escapement = 0,
                   bool bold = false) const {
        return with->SelectFont(Bstr(L"PictureBox"), Handle(), height, escapement,
                                bold ? VARIANT_TRUE : VARIANT_FALSE, VARIANT_TRUE, VARIANT_FALSE,
                                VARIANT_TRUE, Bstr(L"Liberation Sans"));
    }
    LONG Handle() const { return static_cast<LONG>(reinterpret_cast<LONG_PTR>(context)); }
    HGDIOBJ Current() const { return GetCurrentObject(context, OBJ_FONT); }
    LOGFONTW CurrentFont() const {
        LOGFONTW font{};
        EXPECT_EQ(GetObjectW(Current(), sizeof font, &font), static_cast<int>(sizeof font));
        return font;
    }

    HDC context;
    HGDIOBJ before;
    Ref<_CFontSelector> selector = support::Create<CFontSelector, _CFontSelector>();
};

TEST_F(FontSelector, SelectsTheFontThatWasAskedFor) {
    ASSERT_OK(Select(selector, 24, 900, true));
    EXPECT_NE(Current(), before);
    const LOGFONTW font = CurrentFont();
    EXPECT_EQ(font.lfHeight, -24) << "the height of the characters";
    EXPECT_EQ(font.lfEscapement, 900);
    EXPECT_EQ(font.lfWeight, FW_BOLD);
    EXPECT_NE(font.lfItalic, 0);
    EXPECT_EQ(font.lfUnderline, 0);
    EXPECT_NE(font.lfStrikeOut, 0);
    EXPECT_STREQ(font.lfFaceName, L"Liberation Sans");
}

TEST_F(FontSelector, SelectsThePreviousFontBackAndDeletesItsOwn) {
    ASSERT_OK(Select(selector, 24));
    const HGDIOBJ own = Current();
    EXPECT_OK(selector->ReleaseFont());
    EXPECT_EQ(Current(), before);
    EXPECT_EQ(GetObjectType(own), 0U);
    EXPECT_OK(selector->ReleaseFont()) << "a second time does nothing";
    EXPECT_EQ(Current(), before);
}

TEST_F(FontSelector, ASecondFontReplacesTheFirst) {
    ASSERT_OK(Select(selector, 24));
    const HGDIOBJ first = Current();
    ASSERT_OK(Select(selector, 12));
    EXPECT_EQ(CurrentFont().lfHeight, -12);
    if (Current() != first) {
        EXPECT_EQ(GetObjectType(first), 0U);
    }
    EXPECT_OK(selector->ReleaseFont());
    EXPECT_EQ(Current(), before);
}

TEST_F(FontSelector, ReleasesItsFontWhenItGoes) {
    ASSERT_OK(Select(selector, 24));
    selector.Reset();
    EXPECT_EQ(Current(), before);
}

TEST_F(FontSelector, TwoSelectorsNestLikeBrackets) {
    const auto inner = support::Create<CFontSelector, _CFontSelector>();
    ASSERT_OK(Select(selector, 24));
    const HGDIOBJ outerFont = Current();
    ASSERT_OK(Select(inner, 12));
    EXPECT_OK(inner->ReleaseFont());
    EXPECT_EQ(Current(), outerFont);
    EXPECT_OK(selector->ReleaseFont());
    EXPECT_EQ(Current(), before);
}

TEST_F(FontSelector, ALongNameIsCut) {
    ASSERT_OK(selector->SelectFont(Bstr(L"Printer"), Handle(), 10, 0, VARIANT_FALSE, VARIANT_FALSE,
                                   VARIANT_FALSE, VARIANT_FALSE, Bstr(std::wstring(100, L'x'))));
    EXPECT_EQ(std::wstring(CurrentFont().lfFaceName), std::wstring(LF_FACESIZE - 1, L'x'));
}

TEST_F(FontSelector, RefusesWhatIsNoDeviceContext) {
    EXPECT_EQ(Outcome(selector->SelectFont(Bstr(L"PictureBox"), 0, 10, 0, VARIANT_FALSE, VARIANT_FALSE,
                                           VARIANT_FALSE, VARIANT_FALSE, Bstr(L"Arial"))),
              support::RunTimeError(5, L"QMath"));
}

/// More rounds than a process may have GDI objects: a single one left behind each time would not let
/// them end.
TEST_F(FontSelector, LeavesNoGdiObjects) {
    constexpr int kRounds = 20000;
    for (int i = 0; i < kRounds; ++i) {
        ASSERT_OK(Select(selector, 10 + i % 7));
        if (i % 2 == 0) {
            ASSERT_OK(selector->ReleaseFont());
        }
    }
    EXPECT_OK(selector->ReleaseFont());
    EXPECT_EQ(Current(), before);
}

} // namespace
