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

} // namespace
