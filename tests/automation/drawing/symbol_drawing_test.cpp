#include "drawing/drawing_fixture.h"

#include <cmath>
#include <numbers>

/// Each rule by which a placed symbol is drawn, against plain GDI calls.

namespace {

using namespace drawing;
using support::ElementSpec;
using support::FontSpec;
using support::Value;

struct Way {
    bool isLate;
    double angle;
};

void PrintTo(const Way& way, std::ostream* out) {
    *out << (way.isLate ? "late bound" : "by the vtable") << " at " << way.angle;
}

/// A symbol with reference point (100, 50), drawn in the middle of an ordinary picture box.
class SymbolDrawing : public DrawingTest, public testing::WithParamInterface<Way> {
protected:
    void Draw(const std::vector<ElementSpec>& elements, LONG mark = -1) {
        const auto symbol = support::NewSymbol(place.reference.x, place.reference.y, 1000, 1000, elements);
        const auto trans = Trans();
        // Factors that this kind of surface does not follow.
        if (!GetParam().isLate) {
            EXPECT_OK(symbol->Draw(place.at.x, place.at.y, place.angle, box.Get(), trans.Get(), 3, 5, &mark));
        } else {
            const std::vector<Value> arguments{place.at.x, place.at.y, place.angle, box,
                                               trans,      3.0,        5.0,         Value::Variable(mark)};
            EXPECT_OK(support::Dispatch(symbol).Call(L"Draw", arguments).status);
        }
    }
    POINT At(LONG x, LONG y) const { return Pixel(view, World(place, {x, y})); }
    std::vector<POINT> At(const std::vector<POINT>& points) const {
        std::vector<POINT> pixels;
        for (const POINT& point : points)
            pixels.push_back(At(point.x, point.y));
        return pixels;
    }
    int Escapement(double textAngle) const {
        return static_cast<int>(std::nearbyint((place.angle + textAngle) * 180 / std::numbers::pi * 10));
    }

    Place place{{100, 50}, {1100, 1000}, GetParam().angle};
    std::vector<POINT> shape{{-600, -400}, {500, -300}, {350, 420}, {-200, 610}};
};

INSTANTIATE_TEST_SUITE_P(Ways, SymbolDrawing,
                         testing::Values(Way{false, 0}, Way{false, 0.3}, Way{false, -2.5}, Way{true, 0},
                                         Way{true, std::numbers::pi / 2}));

TEST_P(SymbolDrawing, AnOpenPolylineWithAllItsPoints) {
    Draw({{.type = symPoly, .points = shape, .lineWidth = 30, .mainColor = kRed}});
    expected.UsePen(PS_SOLID, 3, kRed);
    Line(At(shape));
    ExpectSame();
}

TEST_P(SymbolDrawing, AFilledPolygonWithAThickOutlineInside) {
    Draw({{.type = symPoly,
           .points = shape,
           .lineWidth = 70,
           .closed = true,
           .fillColor = kGreen,
           .mainColor = kBlue}});
    expected.UsePen(PS_INSIDEFRAME, 7, kBlue);
    expected.UseBrush(kGreen);
    Closed(At(shape));
    ExpectSame();
}

TEST_P(SymbolDrawing, ACircle) {
    Draw({{.type = symCircle, .points = {{200, 150}}, .lineWidth = 40, .mainColor = kRed, .radius = 373}});
    expected.UsePen(PS_SOLID, 4, kRed);
    expected.UseNoBrush();
    Circle(At(200, 150), 37);
    ExpectSame();
}

TEST_P(SymbolDrawing, AnArcIsNeverFilled) {
    Draw({{.type = symArc,
           .points = {{150, 100}, {550, 100}, {150, 500}},
           .lineWidth = 20,
           .fillColor = kGreen,
           .mainColor = kBlue,
           .radius = 400}});
    const POINT centre = At(150, 100);
    const POINT start = At(550, 100);
    const POINT end = At(150, 500);
    expected.UsePen(PS_SOLID, 2, kBlue);
    Arc(Dc(), centre.x - 40, centre.y - 40, centre.x + 40, centre.y + 40, start.x, start.y, end.x, end.y);
    ExpectSame();
}

TEST_P(SymbolDrawing, ATextInEachAlignment) {
    for (const LONG across : {TA_LEFT, TA_RIGHT, TA_CENTER}) {
        for (const LONG along : {TA_TOP, TA_BOTTOM, TA_BASELINE}) {
            StartAgain();
            // 6 points are 2.1167 mm, of 100 units each: 21 pixels.
            Draw({{.type = symText,
                   .points = {{120, 90}},
                   .mainColor = kRed,
                   .text = L"Gäste",
                   .textAlign = across | along}});
            expected.UseFont(21, Escapement(0));
            SetTextColor(Dc(), kRed);
            SetTextAlign(Dc(), static_cast<UINT>(across | along));
            SetBkMode(Dc(), TRANSPARENT);
            Text(At(120, 90), "G\xE4ste");
            ExpectSame();
        }
    }
}

TEST_P(SymbolDrawing, ATurnedTextOnAnOpaqueBackground) {
    Draw({{.type = symText,
           .points = {{0, 90}},
           .mainColor = kBlue,
           .text = L"Wohnen",
           .font = FontSpec{.name = L"Times New Roman",
                            .size = 6,
                            .bold = true,
                            .italic = true,
                            .underline = true,
                            .strikethrough = true},
           .textAngle = 0.7,
           .textBkMode = 2}});
    expected.UseFont(21, Escapement(0.7), L"Times New Roman", FW_BOLD, true, true, true);
    SetTextColor(Dc(), kBlue);
    SetBkMode(Dc(), OPAQUE);
    Text(At(0, 90), "Wohnen");
    ExpectSame();
}

TEST_P(SymbolDrawing, DrawnTwiceInAnInvertingModeItIsGone) {
    const std::vector<ElementSpec> elements{
        {.type = symPoly,
         .points = shape,
         .lineWidth = 50,
         .closed = true,
         .fillColor = kGreen,
         .mainColor = kRed},
        {.type = symArc, .points = {{150, 100}, {550, 100}, {150, 500}}, .radius = 400},
        {.type = symText, .points = {{-600, -700}}, .mainColor = kBlue, .text = L"Küche", .textBkMode = 2}};
    box->SetProperty(L"DrawMode", R2_NOTXORPEN);
    Draw({elements[2]});
    EXPECT_TRUE(support::IsDrawnOn(drawn)) << "the text alone";
    EXPECT_EQ(GetBkMode(drawn.Dc()), TRANSPARENT);
    Draw({elements[2]});
    ExpectNothingDrawn();
    Draw(elements);
    EXPECT_TRUE(support::IsDrawnOn(drawn));
    Draw(elements);
    ExpectNothingDrawn();
    EXPECT_EQ(box->Property(L"DrawMode"), R2_NOTXORPEN);
}

TEST_P(SymbolDrawing, LinesAndFillsFollowTheDrawMode) {
    box->SetProperty(L"DrawMode", R2_NOTXORPEN);
    Draw({{.type = symPoly, .points = shape, .closed = true, .fillColor = kGreen},
          {.type = symPoly, .points = {{-900, 0}, {900, 20}}, .lineWidth = 30, .mainColor = kRed}});
    SetROP2(Dc(), R2_NOTXORPEN);
    expected.UseBrush(kGreen);
    expected.UsePen(PS_NULL, 1, 0);
    Closed(At(shape));
    expected.UsePen(PS_SOLID, 3, kRed);
    Line({At(-900, 0), At(900, 20)});
    ExpectSame();
}

} // namespace
