#include "drawing/drawing_fixture.h"

#include <cmath>

/// Each rule by which an editor's element is drawn, against plain GDI calls; its points are world points.

namespace {

using namespace drawing;
using support::ElementSpec;
using support::FontSpec;

/// The parameter tells whether the element is drawn late bound.
class ElementDrawing : public DrawingTest, public testing::WithParamInterface<bool> {
protected:
    void Draw(const ElementSpec& spec, const wchar_t* method = L"Draw") {
        const auto element = support::NewElement(spec);
        const auto trans = Trans();
        if (GetParam()) {
            EXPECT_OK(support::Dispatch(element).Call(method, {box, trans}).status);
        } else if (std::wstring(method) == L"Draw") {
            EXPECT_OK(element->Draw(box.Get(), trans.Get()));
        } else {
            EXPECT_OK(element->DrawTracker(box.Get(), trans.Get()));
        }
    }
    std::vector<POINT> At(const std::vector<POINT>& points) const {
        std::vector<POINT> pixels;
        for (const POINT& point : points)
            pixels.push_back(Pixel(view, point));
        return pixels;
    }

    std::vector<POINT> shape{{100, 200}, {1400, 300}, {1250, 1320}, {600, 1610}, {200, 900}};
    std::vector<POINT> allButTheLast{shape.begin(), shape.end() - 1};
};

INSTANTIATE_TEST_SUITE_P(Bindings, ElementDrawing, testing::Bool());

TEST_P(ElementDrawing, AnOpenPolylineWithoutItsLastPoint) {
    Draw({.type = symPoly, .points = shape, .lineWidth = 40, .fillColor = kGreen, .mainColor = kRed});
    expected.UsePen(PS_SOLID, 4, kRed);
    Line(At(allButTheLast));
    ExpectSame();
}

TEST_P(ElementDrawing, AFilledPolygon) {
    Draw({.type = symPoly,
          .points = shape,
          .lineWidth = 60,
          .closed = true,
          .fillColor = kGreen,
          .mainColor = kBlue});
    expected.UsePen(PS_INSIDEFRAME, 6, kBlue);
    expected.UseBrush(kGreen);
    Closed(At(allButTheLast));
    ExpectSame();
}

TEST_P(ElementDrawing, ACircleOfOnePoint) {
    Draw({.type = symCircle, .points = {{900, 800}}, .lineWidth = 30, .mainColor = kRed, .radius = 555});
    expected.UsePen(PS_SOLID, 3, kRed);
    expected.UseNoBrush();
    Circle(Pixel(view, {900, 800}), 56); // 55.5 to the even neighbour
    ExpectSame();
}

TEST_P(ElementDrawing, AnArcOfThreePointsIsNeverFilled) {
    Draw({.type = symArc,
          .points = {{900, 800}, {1400, 900}, {700, 300}},
          .lineWidth = 20,
          .fillColor = kGreen,
          .mainColor = kBlue,
          .radius = 500});
    expected.UsePen(PS_SOLID, 2, kBlue);
    const POINT c = Pixel(view, {900, 800});
    const POINT start = Pixel(view, {1400, 900});
    const POINT end = Pixel(view, {700, 300});
    Arc(Dc(), c.x - 50, c.y - 50, c.x + 50, c.y + 50, start.x, start.y, end.x, end.y);
    ExpectSame();
}

TEST_P(ElementDrawing, ATextInItsFont) {
    for (const LONG align : {TA_LEFT | TA_TOP, TA_CENTER | TA_BASELINE, TA_RIGHT | TA_BOTTOM}) {
        for (const LONG background : {TRANSPARENT, OPAQUE}) {
            StartAgain();
            Draw({.type = symText,
                  .points = {{900, 800}, {1, 1}},
                  .mainColor = kBlue,
                  .text = L"Öl",
                  .font = FontSpec{.size = 24, .italic = true, .underline = true},
                  .textAngle = 0.5,
                  .textAlign = align,
                  .textBkMode = background});
            // 24 points are 8.467 mm; 0.5 is 28.648 degrees.
            expected.UseFont(85, 286, L"Arial", FW_NORMAL, true, true);
            SetTextColor(Dc(), kBlue);
            SetTextAlign(Dc(), static_cast<UINT>(align));
            SetBkMode(Dc(), background);
            Text(Pixel(view, {900, 800}), "\xD6l");
            ExpectSame();
        }
    }
}

TEST_P(ElementDrawing, ATextWithoutAFontStandsInTheFontOfTheSurface) {
    drawn.UseFont(40, 100, L"Times New Roman");
    Draw({.type = symText, .points = {{300, 1100}}, .mainColor = kRed, .text = L"Flur", .textAngle = 1});
    expected.UseFont(40, 100, L"Times New Roman");
    SetTextColor(Dc(), kRed);
    SetBkMode(Dc(), TRANSPARENT);
    Text(Pixel(view, {300, 1100}), "Flur");
    ExpectSame();
}

TEST_P(ElementDrawing, TheSurfaceHasItsFontBackAfterwards) {
    drawn.UseFont(40, 0, L"Times New Roman");
    const HGDIOBJ before = GetCurrentObject(drawn.Dc(), OBJ_FONT);
    Draw({.type = symText, .points = {{300, 1100}}, .text = L"Flur", .font = FontSpec{}});
    EXPECT_TRUE(support::IsDrawnOn(drawn));
    EXPECT_EQ(GetCurrentObject(drawn.Dc(), OBJ_FONT), before);
}

TEST_P(ElementDrawing, AHandleOnEachPointGoneTheSecondTime) {
    const ElementSpec spec{.type = symArc, .points = {{900, 800}, {1400, 900}, {930, 800}}, .radius = 500};
    Draw(spec, L"DrawTracker");
    for (const POINT& point : At(spec.points))
        PatBlt(Dc(), point.x - 3, point.y - 3, 7, 7, DSTINVERT);
    ExpectSame();
    EXPECT_GE(box->Count("get hDC"), 3) << "the device context is read anew for each handle";
    EXPECT_EQ(box->Logged("put"), std::vector<std::string>{});
    Draw(spec, L"DrawTracker");
    ExpectNothingDrawn();
}

TEST_P(ElementDrawing, OfACollectionInItsOrderAndItsHandles) {
    const std::vector<ElementSpec> specs{
        {.type = symPoly, .points = shape, .closed = true, .fillColor = kGreen},
        {.type = symUndefined, .points = {{1000, 300}}},
        {.type = symCircle, .points = {{700, 800}}, .fillColor = kRed, .radius = 500}};
    const auto elements = support::NewElements(specs);
    const auto call = [&](const wchar_t* method) {
        if (GetParam()) {
            EXPECT_OK(support::Dispatch(elements).Call(method, {box, Trans()}).status);
        } else if (std::wstring(method) == L"Draw") {
            EXPECT_OK(elements->Draw(box.Get(), Trans().Get()));
        } else {
            EXPECT_OK(elements->DrawTracker(box.Get(), Trans().Get()));
        }
    };
    call(L"Draw");
    expected.UsePen(PS_NULL, 1, 0);
    expected.UseBrush(kGreen);
    Closed(At(allButTheLast));
    expected.UseBrush(kRed);
    Circle(Pixel(view, {700, 800}), 50);
    ExpectSame();

    box->ClearLog();
    const std::vector<std::uint32_t> before = drawn.Pixels();
    call(L"DrawTracker");
    for (const ElementSpec& spec : specs)
        for (const POINT& point : At(spec.points))
            PatBlt(Dc(), point.x - 3, point.y - 3, 7, 7, DSTINVERT);
    ExpectSame();
    EXPECT_EQ(box->Logged("put"), std::vector<std::string>{});
    call(L"DrawTracker");
    EXPECT_TRUE(drawn.Pixels() == before) << "the second time they are gone";
}

} // namespace
