#include "drawing/drawing_fixture.h"
#include "support/text.h"

#include <cmath>

/// What the kind and the name of a surface change, what is asked of it, and when nothing is drawn at all.

namespace {

using namespace drawing;
using support::ElementSpec;
using support::Value;

using Log = std::vector<std::string>;

struct SurfaceCase {
    const wchar_t* name;
    const wchar_t* type;
    double printer, screen;  ///< factors
    double geometry, height; ///< what they come to
};

void PrintTo(const SurfaceCase& sample, std::ostream* out) {
    *out << support::Narrow(sample.type) << ' ' << support::Narrow(sample.name) << " with factors "
         << sample.printer << " and " << sample.screen;
}

class Surfaces : public DrawingTest, public testing::WithParamInterface<SurfaceCase> {
protected:
    Surfaces() : DrawingTest(GetParam().name, GetParam().type) {}
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, Surfaces,
    testing::Values(SurfaceCase{L"PlanBox", L"PictureBox", 2, 3, 1, 1},
                    SurfaceCase{L"PlanBox", L"PictureBox", 0, 0, 1, 1},
                    SurfaceCase{L"graphicbox", L"PictureBox", 2, 3, 1, 1}, // names are exact
                    SurfaceCase{L"GraphicBox", L"PictureBox", 2, 1, 1, 1},
                    SurfaceCase{L"GraphicBox", L"PictureBox", 3, 2, 2, 2},
                    SurfaceCase{L"GraphicBox", L"PictureBox", 3, 0.5, 0.5, 0.5},
                    SurfaceCase{L"GraphicBox", L"PictureBox", 3, 0, 0,
                                1}, // all in one point, texts as they are
                    SurfaceCase{L"PreviewPABox", L"PictureBox", 1, 3, 1, 1},
                    SurfaceCase{L"PreviewPABox", L"PictureBox", 2, 3, 2, 2},
                    SurfaceCase{L"PreviewPABox", L"PictureBox", 0, 3, 1, 1},
                    SurfaceCase{L"PlanBox", L"Printer", 1, 3, 1, 1},
                    SurfaceCase{L"PlanBox", L"Printer", 2, 3, 2, 2},
                    SurfaceCase{L"PlanBox", L"Printer", 0, 3, 1, 1},
                    SurfaceCase{L"GraphicBox", L"_Printer", 2, 3, 2, 2})); // a printer has no name

TEST_P(Surfaces, FollowTheirFactor) {
    const std::vector<POINT> shape{{-300, -200}, {250, -150}, {175, 210}};
    const auto symbol = support::NewSymbol(
        100, 50, 1000, 1000,
        {{.type = symPoly,
          .points = shape,
          .lineWidth = 50,
          .closed = true,
          .fillColor = kGreen,
          .mainColor = kRed},
         {.type = symCircle, .points = {{300, 200}}, .lineWidth = 20, .mainColor = kBlue, .radius = 101},
         {.type = symArc, .points = {{0, 200}, {100, 200}, {0, 300}}, .mainColor = kBlue, .radius = 100},
         {.type = symText, .points = {{50, 100}}, .mainColor = kBlue, .text = L"Diele"}});
    EXPECT_OK(symbol->Draw(1000, 900, 0.2, box.Get(), Trans().Get(), GetParam().printer, GetParam().screen,
                           nullptr));

    const Place place{{100, 50}, {1000, 900}, 0.2, GetParam().geometry};
    const auto at = [&](LONG x, LONG y) { return Pixel(view, World(place, {x, y})); };
    const auto radius = [&](double length) { return Pixels(view, std::nearbyint(length * place.factor)); };
    // Line widths do not follow.
    expected.UsePen(PS_INSIDEFRAME, 5, kRed);
    expected.UseBrush(kGreen);
    Closed({at(-300, -200), at(250, -150), at(175, 210)});
    expected.UseNoBrush();
    expected.UsePen(PS_SOLID, 2, kBlue);
    Circle(at(300, 200), radius(101));
    expected.UsePen(PS_SOLID, 1, kBlue);
    const POINT centre = at(0, 200);
    const POINT start = at(100, 200);
    const POINT end = at(0, 300);
    const int r = radius(100);
    Arc(Dc(), centre.x - r, centre.y - r, centre.x + r, centre.y + r, start.x, start.y, end.x, end.y);
    expected.UseFont(static_cast<int>(std::nearbyint(21 * GetParam().height)), 115); // 11.459 degrees
    SetTextColor(Dc(), kBlue);
    SetBkMode(Dc(), TRANSPARENT);
    Text(at(50, 100), "Diele");
    ExpectSame();
    EXPECT_EQ(box->Count("get Name"), std::wstring(GetParam().type).ends_with(L"Printer") ? 0 : 1);
}

class SurfaceAccess : public DrawingTest {
protected:
    const std::vector<POINT> line{{0, 0}, {500, 400}};
};

TEST_F(SurfaceAccess, ASymbolPutsAPropertyOnlyWhenItDiffers) {
    const auto symbol =
        support::NewSymbol(0, 0, 100, 100,
                           {{.type = symPoly, .points = line, .lineWidth = 30, .mainColor = kRed},
                            {.type = symPoly, .points = line, .lineWidth = 31, .mainColor = kRed},
                            {.type = symPoly,
                             .points = line,
                             .lineWidth = 30,
                             .closed = true,
                             .fillColor = kGreen,
                             .mainColor = kRed},
                            {.type = symText, .points = {{0, 0}}, .mainColor = kRed, .text = L"x"},
                            {.type = symCircle,
                             .points = {{0, 0}},
                             .lineWidth = 0,
                             .fillColor = kGreen,
                             .mainColor = kBlue,
                             .radius = 50}});
    EXPECT_OK(symbol->Draw(0, 0, 0, box.Get(), Trans().Get(), 1, 1, nullptr));
    const auto put = [](const char* name, long value) {
        return "put " + std::string(name) + " " + std::to_string(value);
    };
    EXPECT_EQ(box->Logged("put"),
              (Log{put("ForeColor", kRed), put("DrawWidth", 3), put("DrawStyle", 0), put("FillColor", 0),
                   put("FillStyle", 1), put("DrawStyle", 6), put("FillColor", kGreen), put("FillStyle", 0),
                   put("ForeColor", kBlue), put("DrawWidth", 1), put("DrawStyle", 5)}));
    // The first put of a call is always made, whatever an earlier call left there.
    box->ClearLog();
    EXPECT_OK(symbol->Draw(0, 0, 0, box.Get(), Trans().Get(), 1, 1, nullptr));
    EXPECT_EQ(box->Logged("put").size(), 11U);
    EXPECT_EQ(box->Logged("get"), (Log{"get hDC", "get DrawMode", "get Name"}));
}

TEST_F(SurfaceAccess, ACollectionPutsTheDrawModeOnce) {
    const ElementSpec element{.type = symPoly, .points = {{0, 0}, {500, 400}, {0, 0}}, .mainColor = kRed};
    box->SetProperty(L"DrawMode", R2_NOTXORPEN);
    EXPECT_OK(support::NewElements({element, element, element})->Draw(box.Get(), Trans().Get()));
    EXPECT_EQ(box->Logged("put DrawMode"), Log{"put DrawMode 13"});
    EXPECT_EQ(box->Logged("put").front(), "put DrawMode 13");
    EXPECT_EQ(box->Logged("put ForeColor").size(), 1U);
    expected.UsePen(PS_SOLID, 1, kRed);
    Line({Pixel(view, {0, 0}), Pixel(view, {500, 400})});
    ExpectSame();

    box->ClearLog();
    EXPECT_OK(support::NewElement(element)->Draw(box.Get(), Trans().Get()));
    EXPECT_EQ(box->Logged("put DrawMode"), Log{});

    box->ClearLog();
    EXPECT_OK(support::NewElements({})->Draw(box.Get(), Trans().Get()));
    EXPECT_EQ(box->Logged("put"), Log{});
}

TEST_F(SurfaceAccess, WithoutSurfaceOrTransformationNothingIsDrawn) {
    const ElementSpec element{.type = symPoly, .points = {{0, 0}, {500, 400}, {0, 0}}};
    const auto symbol = support::NewSymbol(0, 0, 100, 100, {element});
    EXPECT_OK(symbol->Draw(0, 0, 0, nullptr, Trans().Get(), 1, 1, nullptr));
    EXPECT_OK(symbol->Draw(0, 0, 0, box.Get(), nullptr, 1, 1, nullptr));
    const support::Dispatch late(symbol);
    EXPECT_OK(late.Call(L"Draw", {0, 0, 0.0, Value::Nothing(), Trans(), 1.0, 1.0}).status);
    EXPECT_OK(late.Call(L"Draw", {0, 0, 0.0, box, Value::Nothing(), 1.0, 1.0}).status);

    const auto single = support::NewElement(element);
    const auto elements = support::NewElements({element});
    EXPECT_OK(single->Draw(nullptr, Trans().Get()));
    EXPECT_OK(single->Draw(box.Get(), nullptr));
    EXPECT_OK(single->DrawTracker(nullptr, Trans().Get()));
    EXPECT_OK(single->DrawTracker(box.Get(), nullptr));
    EXPECT_OK(elements->Draw(nullptr, Trans().Get()));
    EXPECT_OK(elements->DrawTracker(nullptr, Trans().Get()));
    EXPECT_OK(elements->DrawTracker(box.Get(), nullptr));
    EXPECT_OK(single->putref_PtList(nullptr));
    EXPECT_OK(single->Draw(box.Get(), Trans().Get()));
    EXPECT_OK(single->DrawTracker(box.Get(), Trans().Get()));
    EXPECT_OK(support::NewSymbol()->Draw(0, 0, 0, box.Get(), Trans().Get(), 1, 1, nullptr));
    ExpectNothingDrawn();
    EXPECT_EQ(box->Logged("put"), Log{});
}

TEST_F(SurfaceAccess, AnOmittedMarkColourIsNone) {
    const support::Dispatch symbol(
        support::NewSymbol(0, 0, 100, 100, {{.type = symPoly, .points = line, .mainColor = kRed}}));
    EXPECT_OK(symbol.Call(L"Draw", {0, 0, 0.0, box, Trans(), 1.0, 1.0}).status);
    expected.UsePen(PS_SOLID, 1, kRed);
    Line({Pixel(view, line[0]), Pixel(view, line[1])});
    ExpectSame();
}

} // namespace
