#include "drawing/drawing_fixture.h"
#include "support/import_patch.h"
#include "support/message_boxes.h"

#include <algorithm>
#include <cmath>
#include <set>

/// What the library does with a device context: its fonts, its paths, a metafile in the place of a screen.

namespace {

using namespace drawing;
using support::ElementSpec;
using support::FontSpec;

class Devices : public DrawingTest {
protected:
    void Draw(const std::vector<ElementSpec>& elements) {
        EXPECT_OK(support::NewSymbol(0, 0, 100, 100, elements)
                      ->Draw(0, 0, 0, box.Get(), Trans().Get(), 1, 1, nullptr));
    }
    static ElementSpec Label(LONG colour, const wchar_t* font) {
        return {.type = symText,
                .points = {{300, 300}},
                .mainColor = colour,
                .text = L"Diele",
                .font = FontSpec{.name = font}};
    }
};

TEST_F(Devices, AFontStaysWhileTextsAskForTheSame) {
    std::vector<HGDIOBJ> fonts;
    const HGDIOBJ own = GetCurrentObject(drawn.Dc(), OBJ_FONT);
    box->OnAccess([&](const std::string& access) {
        if (access.starts_with("put ForeColor"))
            fonts.push_back(GetCurrentObject(drawn.Dc(), OBJ_FONT));
    });
    Draw({Label(1, L"Arial"), Label(2, L"Arial"), Label(3, L"Arial"), Label(4, L"Times New Roman"),
          Label(5, L"Arial")});
    ASSERT_EQ(fonts.size(), 5U);
    EXPECT_EQ(fonts[0], own);
    EXPECT_NE(fonts[1], own);
    EXPECT_EQ(fonts[2], fonts[1]);
    EXPECT_EQ(fonts[3], fonts[1]);
    EXPECT_NE(fonts[4], own);
    EXPECT_EQ(GetCurrentObject(drawn.Dc(), OBJ_FONT), own);
}

TEST_F(Devices, ARasterFontIsNeverChosen) {
    for (const wchar_t* name :
         {L"Arial", L"Courier", L"System", L"Fixedsys", L"MS Sans Serif", L"Small Fonts"}) {
        TEXTMETRICW metrics{};
        box->OnAccess([&](const std::string& access) {
            if (access == "put ForeColor 2")
                GetTextMetricsW(drawn.Dc(), &metrics);
        });
        Draw({Label(1, name), Label(2, name)});
        EXPECT_TRUE(metrics.tmPitchAndFamily & (TMPF_TRUETYPE | TMPF_VECTOR)) << name;
    }
}

TEST_F(Devices, AnElementsInvertedTextHasItsColourAndLeavesNothingBehind) {
    constexpr std::uint32_t kBluePixel = 0x1428DC;
    box->SetProperty(L"DrawMode", R2_NOTXORPEN);
    const auto text = support::NewElement(Label(kBlue, L"Arial"));
    const std::vector<std::uint32_t> before = drawn.Pixels();
    EXPECT_OK(text->Draw(box.Get(), Trans().Get()));
    EXPECT_TRUE(support::IsDrawnOn(drawn));
    const std::vector<std::uint32_t> inverted = drawn.Pixels();
    for (std::size_t i = 0; i < before.size(); ++i)
        if (inverted[i] != before[i]) {
            ASSERT_EQ(inverted[i], ~(kBluePixel ^ before[i]) & 0xFFFFFF) << i;
        }
    EXPECT_OK(text->Draw(box.Get(), Trans().Get()));
    EXPECT_FALSE(support::IsDrawnOn(drawn));
}

int WINAPI RefuseToEncode(UINT, DWORD, LPCWCH, int, LPSTR, int, LPCCH, LPBOOL) {
    return -1;
}

/// More often than the slack for the system's own objects, so that one left by each would show.
TEST_F(Devices, AnInvertedTextThatFailsLeavesNoObjectAndNoOpenPath) {
    box->SetProperty(L"DrawMode", R2_NOTXORPEN);
    ElementSpec spec = Label(kBlue, L"Arial");
    spec.text = L"Küche";
    const auto text = support::NewElement(spec);
    const HGDIOBJ brush = GetCurrentObject(drawn.Dc(), OBJ_BRUSH);
    const HGDIOBJ font = GetCurrentObject(drawn.Dc(), OBJ_FONT);
    {
        const support::ImportPatch failing(L"QSymbol.dll", "WideCharToMultiByte",
                                           reinterpret_cast<void*>(RefuseToEncode));
        for (long i = 0; i < 2 * kSystemsOwn; ++i)
            EXPECT_TRUE(FAILED(text->Draw(box.Get(), Trans().Get())));
    }
    EXPECT_EQ(GetCurrentObject(drawn.Dc(), OBJ_BRUSH), brush);
    EXPECT_EQ(GetCurrentObject(drawn.Dc(), OBJ_FONT), font);
    EXPECT_FALSE(EndPath(drawn.Dc())) << "a path is open";
    ExpectNothingDrawn();
    EXPECT_OK(text->Draw(box.Get(), Trans().Get()));
    EXPECT_TRUE(support::IsDrawnOn(drawn));
}

/// The columns and rows on which something was drawn.
RECT DrawnArea(const support::Canvas& canvas) {
    const support::Canvas untouched(canvas.Width(), canvas.Height());
    const auto pixels = canvas.Pixels();
    const auto before = untouched.Pixels();
    RECT area{canvas.Width(), canvas.Height(), -1, -1};
    for (LONG y = 0; y < canvas.Height(); ++y) {
        for (LONG x = 0; x < canvas.Width(); ++x) {
            const auto at = static_cast<std::size_t>(y * canvas.Width() + x);
            if (pixels[at] != before[at])
                area = {std::min(area.left, x), std::min(area.top, y), std::max(area.right, x),
                        std::max(area.bottom, y)};
        }
    }
    return area;
}

/// A copy made by Append has no size: what is drawn decides, a text as wide as it is set.
TEST_F(Devices, APreviewWithoutASizeFitsWhatIsDrawn) {
    support::MessageBoxes none;
    const ElementSpec title{.type = symText,
                            .points = {{100000, 50000}},
                            .text = L"Wohnzimmer",
                            .font = FontSpec{.size = 24},
                            .textAlign = TA_CENTER | TA_BASELINE};
    EXPECT_OK(support::NewSymbol(0, 0, 0, 0, {title})->Draw2PBox(box.Get()));
    const RECT text = DrawnArea(drawn);
    EXPECT_LE(text.left, 8);
    EXPECT_GE(text.right, 231);
    EXPECT_GT(text.bottom - text.top, 15);

    StartAgain();
    const ElementSpec quarter{
        .type = symArc, .points = {{0, 0}, {24000, 0}, {0, -24000}}, .lineWidth = 1000, .radius = 24000};
    EXPECT_OK(support::NewSymbol(0, 0, 0, 0, {quarter})->Draw2PBox(box.Get()));
    const RECT arc = DrawnArea(drawn);
    EXPECT_LE(arc.left, 2);
    EXPECT_LE(arc.top, 2);
    EXPECT_GE(arc.right, 237);
    EXPECT_GE(arc.bottom, 237);
}

/// What a drawing left behind would add up.
TEST_F(Devices, AHundredDrawingsLeaveNoObject) {
    support::MessageBoxes none;
    const std::vector<ElementSpec> elements{
        {.type = symPoly, .points = {{0, 0}, {900, 0}, {0, 900}}, .closed = true, .fillColor = kGreen},
        {.type = symCircle, .points = {{500, 500}}, .mainColor = kRed, .radius = 300},
        Label(kBlue, L"Arial"),
        Label(kRed, L"Times New Roman")};
    const auto symbol = support::NewSymbol(0, 0, 0, 0, elements);
    const auto editable = support::NewElements(elements);
    const auto trans = Trans();
    for (const LONG mode : {R2_COPYPEN, R2_NOTXORPEN}) {
        for (int i = 0; i < 50; ++i) {
            box->SetProperty(L"DrawMode", mode);
            EXPECT_OK(symbol->Draw(0, 0, i, box.Get(), trans.Get(), 1, 1, nullptr));
            EXPECT_OK(symbol->Draw2PBox(box.Get()));
            EXPECT_OK(editable->DrawTracker(box.Get(), trans.Get()));
            EXPECT_OK(editable->Draw(box.Get(), trans.Get()));
        }
    }
}

TEST_F(Devices, AnArcOnOnePixelIsThatPixel) {
    Draw({{.type = symArc,
           .points = {{1000, 1000}, {1500, 1000}, {1500, 997}},
           .mainColor = kRed,
           .radius = 500}});
    expected.UsePen(PS_SOLID, 1, kRed);
    const POINT pixel = Pixel(view, {1500, 1000});
    Line({pixel, {pixel.x + 1, pixel.y}});
    ExpectSame();
}

int CALLBACK NoteRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM types) {
    reinterpret_cast<std::multiset<DWORD>*>(types)->insert(record->iType);
    return 1;
}

TEST_F(Devices, AMetafileRecordsAndReplaysASymbol) {
    const std::vector<ElementSpec> elements{
        {.type = symPoly,
         .points = {{100, 100}, {1800, 300}, {900, 1700}},
         .lineWidth = 30,
         .closed = true,
         .fillColor = kGreen,
         .mainColor = kRed},
        {.type = symCircle, .points = {{900, 900}}, .lineWidth = 20, .mainColor = kBlue, .radius = 501},
        {.type = symArc,
         .points = {{500, 1500}, {900, 1500}, {500, 1100}},
         .mainColor = kBlue,
         .radius = 400},
        Label(kRed, L"Arial")};
    // A frame in which a pixel stays a pixel.
    const HDC screen = GetDC(nullptr);
    const RECT frame{0, 0, MulDiv(240, 100 * GetDeviceCaps(screen, HORZSIZE), GetDeviceCaps(screen, HORZRES)),
                     MulDiv(240, 100 * GetDeviceCaps(screen, VERTSIZE), GetDeviceCaps(screen, VERTRES))};
    const HDC recorder = CreateEnhMetaFileW(screen, nullptr, &frame, nullptr);
    ReleaseDC(nullptr, screen);
    ASSERT_NE(recorder, nullptr);
    box.Reset();
    drawn.RecordOn(recorder);
    box = support::PictureBox::Create(drawn);
    Draw(elements);
    box.Reset();
    drawn.RecordOn(nullptr);
    const HENHMETAFILE metafile = CloseEnhMetaFile(recorder);
    ASSERT_NE(metafile, nullptr);

    std::multiset<DWORD> types;
    EXPECT_TRUE(EnumEnhMetaFile(nullptr, metafile, NoteRecord, &types, nullptr));
    EXPECT_EQ(types.count(EMR_POLYGON16), 1U);
    EXPECT_EQ(types.count(EMR_ELLIPSE), 1U);
    EXPECT_EQ(types.count(EMR_ARC), 1U);
    EXPECT_EQ(types.count(EMR_EXTTEXTOUTA) + types.count(EMR_EXTTEXTOUTW), 1U);
    const RECT all{0, 0, 240, 240};
    EXPECT_TRUE(PlayEnhMetaFile(drawn.Dc(), metafile, &all));
    EXPECT_TRUE(DeleteEnhMetaFile(metafile));

    // The same on the screen.
    box = support::PictureBox::Create(expected);
    Draw(elements);
    box.Reset();
    const RECT replayed = DrawnArea(drawn);
    const RECT direct = DrawnArea(expected);
    EXPECT_NEAR(replayed.left, direct.left, 1);
    EXPECT_NEAR(replayed.top, direct.top, 1);
    EXPECT_NEAR(replayed.right, direct.right, 1);
    EXPECT_NEAR(replayed.bottom, direct.bottom, 1);
}

} // namespace
