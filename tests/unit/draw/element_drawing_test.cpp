#include "qsymbol/draw/element_drawing.h"

#include "qmath/math_util.h"
#include "qsymbol/draw/screen_point_buffer.h"
#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/recording_surface.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

using qmath::Point;
using qsymbol::ElementRecord;
using qsymbol::ElementType;
using support::Arc;
using support::Calls;
using support::Circle;
using support::Element;
using support::Poly;
using support::Text;

constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

/// Ten world units to a pixel.
Calls Draw(const ElementRecord& element) {
    support::RecordingSurface surface;
    qsymbol::DrawElement(element, surface, support::ScaledTransformation(10));
    return surface.calls;
}

TEST(ElementDrawing, OpenPolyline) {
    EXPECT_EQ(Draw(Poly({{0, 0}, {100, 0}, {100, 50}, {7, 7}})),
              (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=0", "FillColor=0", "FillStyle=1",
                     "Polyline (0,0) (10,0) (10,5)"}));
}

TEST(ElementDrawing, AnOpenPolylineIsNeverFilled) {
    EXPECT_EQ(Draw(Poly({{0, 0}, {100, 0}, {100, 50}}, false, 77)),
              (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=0", "FillColor=0", "FillStyle=1",
                     "Polyline (0,0) (10,0)"}));
}

TEST(ElementDrawing, ClosedPolygonFilledAndNot) {
    EXPECT_EQ(Draw(Poly({{0, 0}, {100, 0}, {100, 50}, {0, 0}}, true, 77)),
              (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=6", "FillColor=77", "FillStyle=0",
                     "Polygon (0,0) (10,0) (10,5)"}));
    EXPECT_EQ(Draw(Poly({{0, 0}, {100, 0}, {100, 50}, {0, 0}}, true)),
              (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=0", "FillColor=0", "FillStyle=1",
                     "Polygon (0,0) (10,0) (10,5)"}));
}

TEST(ElementDrawing, BlackIsAFillColour) {
    EXPECT_EQ(Draw(Poly({{0, 0}, {100, 0}, {100, 50}}, true, 0)),
              (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=6", "FillColor=0", "FillStyle=0",
                     "Polygon (0,0) (10,0)"}));
}

TEST(ElementDrawing, TheOutlineOfAFillIsInvisibleForTheStoredWidthBelow1) {
    ElementRecord element = Poly({{0, 0}, {100, 0}, {100, 50}}, true, 77);
    const auto styleFor = [&](std::int32_t width) {
        element.lineWidth = width;
        const Calls calls = Draw(element);
        return calls[1] + " " + calls[2];
    };
    EXPECT_EQ(styleFor(0), "DrawWidth=1 DrawStyle=5");
    EXPECT_EQ(styleFor(-30), "DrawWidth=1 DrawStyle=5");
    EXPECT_EQ(styleFor(1), "DrawWidth=1 DrawStyle=6"); // less than a pixel, but a width
    EXPECT_EQ(styleFor(34), "DrawWidth=3 DrawStyle=6");
}

TEST(ElementDrawing, PolyNeedsTwoPointsAndLeavesTheLastOut) {
    EXPECT_EQ(Draw(Poly({})), Calls{});
    EXPECT_EQ(Draw(Poly({{10, 10}})), Calls{});
    EXPECT_EQ(Draw(Poly({{10, 10}, {50, 50}})).back(), "Polyline (1,1)");
    EXPECT_EQ(Draw(Poly({{10, 10}, {50, 50}, {90, 90}})).back(), "Polyline (1,1) (5,5)");
}

TEST(ElementDrawing, TheLastPointIsConvertedAllTheSame) {
    support::RecordingSurface surface;
    const ElementRecord element = Poly({{0, 0}, {1, 1}, {kHighest, 0}});
    EXPECT_EQ(support::ErrorNumberOf(
                  [&] { qsymbol::DrawElement(element, surface, support::ScaledTransformation(0.5)); }),
              6);
}

TEST(ElementDrawing, Circle) {
    EXPECT_EQ(Draw(Circle({100, 200}, 50)), (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=0",
                                                   "FillColor=0", "FillStyle=1", "Ellipse (5,15) (15,25)"}));
    EXPECT_EQ(Draw(Circle({100, 200}, 50, 77)),
              (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=6", "FillColor=77", "FillStyle=0",
                     "Ellipse (5,15) (15,25)"}));
}

TEST(ElementDrawing, FilledCircleWithoutLineWidth) {
    ElementRecord circle = Circle({100, 200}, 50, 77);
    circle.lineWidth = 0;
    EXPECT_EQ(Draw(circle), (Calls{"ForeColor=11", "DrawWidth=1", "DrawStyle=5", "FillColor=77",
                                   "FillStyle=0", "Ellipse (5,15) (15,25)"}));
}

TEST(ElementDrawing, ArcsAreNeverFilled) {
    ElementRecord arc = Arc({100, 200}, 50, {150, 200}, {100, 150});
    arc.fillColor = 77;
    EXPECT_EQ(Draw(arc), (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=0", "FillColor=0", "FillStyle=1",
                                "Arc (5,15) (15,25) (15,20) (10,15)"}));
}

TEST(ElementDrawing, CircleAndArcNeedTheirExactNumberOfPoints) {
    EXPECT_EQ(Draw(Element(ElementType::Circle, {})), Calls{});
    EXPECT_EQ(Draw(Element(ElementType::Circle, {{1, 1}, {2, 2}})), Calls{});
    EXPECT_EQ(Draw(Element(ElementType::Arc, {{1, 1}, {2, 2}})), Calls{});
    EXPECT_EQ(Draw(Element(ElementType::Arc, {{1, 1}, {2, 2}, {3, 3}, {4, 4}})), Calls{});
}

TEST(ElementDrawing, ASquareBeyondTheRangeIsError6) {
    support::RecordingSurface surface;
    const auto draw = [&](const ElementRecord& element) {
        return support::ErrorNumberOf(
            [&] { qsymbol::DrawElement(element, surface, support::ScaledTransformation(1)); });
    };
    EXPECT_EQ(draw(Circle({kHighest - 9, 0}, 10)), 6);
    EXPECT_EQ(draw(Circle({0, -kHighest + 8}, 10)), 6);
    EXPECT_EQ(draw(Circle({kHighest - 10, 0}, 10)), 0);
}

TEST(ElementDrawing, UnknownTypesDrawNothing) {
    for (const int type : {0, 5, -1, 99})
        for (const std::size_t count : {0U, 1U, 2U, 3U})
            EXPECT_EQ(Draw(Element(static_cast<ElementType>(type), std::vector<Point>(count))), Calls{});
}

TEST(ElementDrawing, Text) {
    ElementRecord text = Text({100, 200}, u"Tisch");
    text.textAlign = 24;
    text.textBkMode = 2;
    text.textAngle = qmath::kPi / 6;
    text.font = {.name = u"Courier",
                 .size = 12,
                 .bold = true,
                 .italic = false,
                 .strikethrough = true,
                 .underline = false};
    EXPECT_EQ(Draw(text), (Calls{"ForeColor=11", "DrawMode?", "TextAlign=24", "BkMode=2",
                                 "Font 42 300 b--s Courier", "Text (10,20) Tisch", "ReleaseFont"}));
    text.font = {.name = u"Times",
                 .size = 12.5,
                 .bold = false,
                 .italic = true,
                 .strikethrough = false,
                 .underline = true};
    text.textAngle = -0.0001;
    EXPECT_EQ(Draw(text)[4], "Font 42 0 -iu- Times");
}

TEST(ElementDrawing, TextWithoutFontUsesTheSurfacesOwn) {
    ElementRecord text = Text({100, 200}, u"abc");
    text.font.reset();
    EXPECT_EQ(Draw(text),
              (Calls{"ForeColor=11", "DrawMode?", "TextAlign=0", "BkMode=1", "Text (10,20) abc"}));
}

TEST(ElementDrawing, TextNeedsAPointAndUsesTheFirst) {
    EXPECT_EQ(Draw(Element(ElementType::Text, {})), Calls{});
    ElementRecord text = Text({100, 200}, u"abc");
    text.points.push_back({900, 900});
    EXPECT_EQ(Draw(text)[5], "Text (10,20) abc");
}

TEST(ElementDrawing, TheSizeFlagMeansNothingHere) {
    ElementRecord text = Text({0, 0}, u"a");
    text.font->size = 1200;
    text.lineClosed = true;
    EXPECT_EQ(Draw(text)[4], "Font 4233 0 ---- Arial");
}

TEST(ElementDrawing, AFontSizeBeyond16BitsIsError6) {
    ElementRecord text = Text({0, 0}, u"a");
    support::RecordingSurface surface;
    const auto draw = [&] { qsymbol::DrawElement(text, surface, support::ScaledTransformation(1)); };
    text.font->size = 32767;
    EXPECT_EQ(support::ErrorNumberOf(draw), 0);
    text.font->size = 32768;
    EXPECT_EQ(support::ErrorNumberOf(draw), 6);
}

TEST(ElementDrawing, AFailedTextReleasesItsFont) {
    support::RecordingSurface surface;
    surface.failing = "Text (";
    EXPECT_EQ(support::ErrorNumberOf([&] {
                  qsymbol::DrawElement(Text({0, 0}, u"a"), surface, support::ScaledTransformation(1));
              }),
              438);
    EXPECT_EQ(surface.calls.back(), "ReleaseFont");
}

TEST(ElementDrawing, AHostsErrorEndsTheDrawing) {
    support::RecordingSurface surface;
    surface.failing = "DrawStyle";
    EXPECT_EQ(support::ErrorNumberOf([&] {
                  qsymbol::DrawElement(Circle({0, 0}, 5), surface, support::ScaledTransformation(1));
              }),
              438);
    EXPECT_EQ(surface.calls, (Calls{"ForeColor=11", "DrawWidth=20"}));
}

TEST(ElementDrawing, TheScreenPointsGrowWithTheElements) {
    qsymbol::ScreenPointBuffer& buffer = qsymbol::ScreenPointBuffer::Shared();
    buffer.Reset();
    Draw(Text({0, 0}, u"a"));
    EXPECT_EQ(buffer.UpperIndex(), 0);
    Draw(Circle({0, 0}, 5));
    EXPECT_EQ(buffer.UpperIndex(), 3);
    Draw(Poly(std::vector<Point>(9)));
    EXPECT_EQ(buffer.UpperIndex(), 8);
    Draw(Text({0, 0}, u"a"));
    EXPECT_EQ(buffer.UpperIndex(), 8);
}

TEST(ElementsDrawing, OneCopyModeAndOnlyChangedProperties) {
    const std::array<ElementRecord, 3> elements{Poly({{0, 0}, {10, 0}, {20, 0}}), Circle({100, 100}, 50, 77),
                                                Poly({{0, 10}, {10, 10}, {20, 10}})};
    support::RecordingSurface surface;
    qsymbol::DrawElements(
        elements.size(), [&](std::size_t i) { return elements[i]; }, surface,
        support::ScaledTransformation(10));
    EXPECT_EQ(surface.calls, (Calls{"DrawMode=13", "ForeColor=11", "DrawWidth=2", "DrawStyle=0",
                                    "FillColor=0", "FillStyle=1", "Polyline (0,0) (1,0)", "DrawStyle=6",
                                    "FillColor=77", "FillStyle=0", "Ellipse (5,5) (15,15)", "DrawStyle=0",
                                    "FillColor=0", "FillStyle=1", "Polyline (0,1) (1,1)"}));
}

TEST(ElementsDrawing, NoElementsTouchNothing) {
    support::RecordingSurface surface;
    qsymbol::DrawElements(
        0, [](std::size_t) { return ElementRecord(); }, surface, support::ScaledTransformation(10));
    EXPECT_EQ(surface.calls, Calls{});
}

TEST(Tracker, InvertsASquareAroundEveryPoint) {
    support::RecordingSurface surface;
    const std::array<Point, 3> points{{{100, 200}, {0, 0}, {-50, 70}}};
    qsymbol::DrawTracker(points, surface, support::ScaledTransformation(10));
    EXPECT_EQ(surface.calls, (Calls{"Invert (7,17) 7x7", "Invert (-3,-3) 7x7", "Invert (-8,4) 7x7"}));
    const Calls first = surface.Take();
    qsymbol::DrawTracker(points, surface, support::ScaledTransformation(10));
    EXPECT_EQ(surface.calls, first);
}

TEST(Tracker, ASquareBeyondTheRangeIsError6) {
    support::RecordingSurface surface;
    const std::array<Point, 1> points{{{-kHighest, 0}}};
    EXPECT_EQ(support::ErrorNumberOf(
                  [&] { qsymbol::DrawTracker(points, surface, support::ScaledTransformation(1)); }),
              6);
    EXPECT_EQ(surface.calls, Calls{});
}

} // namespace
