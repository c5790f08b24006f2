#include "qsymbol/draw/symbol_drawing.h"

#include "qmath/math_util.h"
#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/recording_surface.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;
using qsymbol::SymbolPosition;
using support::Arc;
using support::Calls;
using support::Circle;
using support::Element;
using support::Poly;
using support::RecordingSurface;
using support::Text;

constexpr SymbolPosition kAt{.at = {1000, 2000}, .angle = 0};
constexpr SymbolPosition kTurned{.at = {1000, 2000}, .angle = qmath::kPi / 2};

Symbol SymbolOf(std::vector<ElementRecord> elements) {
    Symbol symbol;
    symbol.refX = 100;
    symbol.refY = 200;
    symbol.elements = std::move(elements);
    return symbol;
}

/// Draws with ten world units to a pixel; the calls without the questions about the surface.
Calls Outputs(RecordingSurface& surface, const Symbol& symbol, const SymbolPosition& position = kAt,
              const qsymbol::DrawFactors& factors = {.printer = 1, .screen = 1},
              std::int32_t markColor = -1) {
    surface.Take();
    qsymbol::DrawSymbol(symbol, position, surface, support::ScaledTransformation(10), factors, markColor);
    Calls calls = surface.Take();
    std::erase_if(calls, [](const std::string& call) { return call.ends_with("?"); });
    return calls;
}

TEST(SymbolDrawing, AllElementsInOrderWithAllTheirPoints) {
    RecordingSurface surface;
    const Symbol symbol = SymbolOf(
        {Poly({{100, 200}, {200, 200}, {200, 300}}), Poly({{100, 200}, {200, 200}, {200, 300}}, true, 77),
         Circle({150, 250}, 50), Arc({150, 250}, 50, {200, 250}, {150, 200}), Text({100, 300}, u"Bett")});
    EXPECT_EQ(Outputs(surface, symbol), (Calls{"ForeColor=11",
                                               "DrawWidth=2",
                                               "DrawStyle=0",
                                               "FillColor=0",
                                               "FillStyle=1",
                                               "Polyline (100,200) (110,200) (110,210)",
                                               "DrawStyle=6",
                                               "FillColor=77",
                                               "FillStyle=0",
                                               "Polygon (100,200) (110,200) (110,210)",
                                               "DrawStyle=0",
                                               "FillColor=0",
                                               "FillStyle=1",
                                               "Ellipse (100,200) (110,210)",
                                               "Arc (100,200) (110,210) (110,205) (105,200)",
                                               "TextAlign=0",
                                               "BkMode=1",
                                               "Font 21 0 ---- Arial",
                                               "Text (100,210) Bett",
                                               "ReleaseFont"}));
}

TEST(SymbolDrawing, TurnedAQuarterTurn) {
    RecordingSurface surface;
    ElementRecord text = Text({200, 200}, u"Bett");
    text.textAngle = qmath::kPi / 6;
    const Symbol symbol = SymbolOf({Poly({{100, 200}, {200, 200}}), Circle({150, 250}, 50),
                                    Arc({100, 200}, 50, {150, 200}, {100, 150}), text});
    const Calls calls = Outputs(surface, symbol, kTurned);
    EXPECT_EQ(calls[5], "Polyline (100,200) (100,190)");
    EXPECT_EQ(calls[6], "Ellipse (100,190) (110,200)");
    EXPECT_EQ(calls[7], "Arc (95,195) (105,205) (100,195) (95,200)");
    EXPECT_EQ(calls[10], "Font 21 1200 ---- Arial"); // the text's own 30 degrees and the symbol's 90
    EXPECT_EQ(calls[11], "Text (100,190) Bett");
}

TEST(SymbolDrawing, AsksTheSurfaceFirst) {
    RecordingSurface surface;
    qsymbol::DrawSymbol(SymbolOf({}), kAt, surface, support::ScaledTransformation(10), {}, -1);
    EXPECT_EQ(surface.Take(), (Calls{"DrawMode?", "Kind?", "Name?"}));
    surface.kind = qsymbol::SurfaceKind::Printer;
    qsymbol::DrawSymbol(SymbolOf({}), kAt, surface, support::ScaledTransformation(10), {}, -1);
    EXPECT_EQ(surface.Take(), (Calls{"DrawMode?", "Kind?"}));
}

TEST(SymbolDrawing, MarkColour) {
    RecordingSurface surface;
    const Symbol symbol = SymbolOf({Poly({{100, 200}, {200, 200}, {200, 300}}, true, 77),
                                    Poly({{100, 200}, {200, 200}}), Text({100, 200}, u"a")});
    const Calls red = Outputs(surface, symbol, kAt, {}, 255);
    EXPECT_EQ(red, (Calls{"ForeColor=255", "DrawWidth=2", "DrawStyle=6", "FillColor=255", "FillStyle=0",
                          "Polygon (100,200) (110,200) (110,210)", "DrawStyle=0", "FillColor=0",
                          "FillStyle=1", "Polyline (100,200) (110,200)", "TextAlign=0", "BkMode=1",
                          "Font 21 0 ---- Arial", "Text (100,200) a", "ReleaseFont"}));
    const Calls black = Outputs(surface, symbol, kAt, {}, 0);
    EXPECT_EQ(black[0], "ForeColor=0");
    EXPECT_EQ(black[3], "FillColor=0");
    EXPECT_EQ(black[4], "FillStyle=0");
    const Calls own = Outputs(surface, symbol, kAt, {}, -1);
    EXPECT_EQ(own[0], "ForeColor=11");
    EXPECT_EQ(own[3], "FillColor=77");
    EXPECT_EQ(Outputs(surface, symbol, kAt, {}, std::numeric_limits<std::int32_t>::min()), own);
}

TEST(SymbolDrawing, TextInAnInvertingModeLeavesItsBackgroundAlone) {
    RecordingSurface surface;
    ElementRecord text = Text({100, 200}, u"a");
    text.textBkMode = 2;
    surface.drawMode = 13;
    EXPECT_EQ(Outputs(surface, SymbolOf({text})),
              (Calls{"ForeColor=11", "TextAlign=0", "BkMode=2", "Font 21 0 ---- Arial", "Text (100,200) a",
                     "ReleaseFont"}));
    surface.drawMode = 10;
    EXPECT_EQ(Outputs(surface, SymbolOf({text})),
              (Calls{"ForeColor=11", "TextAlign=0", "BkMode=1", "Font 21 0 ---- Arial",
                     "TextPath (100,200) a", "ReleaseFont"}));
}

TEST(SymbolDrawing, SizeFlagMeansHundredths) {
    RecordingSurface surface;
    ElementRecord text = Text({100, 200}, u"a");
    text.font->size = 1200;
    text.lineClosed = true;
    EXPECT_EQ(Outputs(surface, SymbolOf({text}))[3], "Font 42 0 ---- Arial");
    text.font->size = 1;
    EXPECT_EQ(Outputs(surface, SymbolOf({text}))[3], "Font 1 0 ---- Arial");
}

/// Which factor counts where: a line, a circle, a text of 42 pixels and a flagged one of 42.33 pixels.
class SymbolFactors : public testing::Test {
protected:
    SymbolFactors() {
        ElementRecord text = Text({200, 200}, u"a");
        text.font->size = 12;
        ElementRecord flagged = Text({200, 200}, u"b");
        flagged.font->size = 1200;
        flagged.lineClosed = true;
        symbol = SymbolOf({Poly({{100, 200}, {200, 200}}), Circle({100, 300}, 50), text, flagged});
    }

    void Expect(const std::string& line, const std::string& circle, const std::string& font,
                const std::string& flagged, const qsymbol::DrawFactors& factors) {
        const Calls calls = Outputs(surface, symbol, kAt, factors);
        EXPECT_EQ(calls[1], "DrawWidth=2"); // line widths are never scaled
        EXPECT_EQ(calls[5], line);
        EXPECT_EQ(calls[6], circle);
        EXPECT_EQ(calls[9], font);
        EXPECT_EQ(flagged == font ? calls[9] : calls[14], flagged); // the same font is kept
    }
    void ExpectUnscaled(const qsymbol::DrawFactors& factors) {
        Expect("Polyline (100,200) (110,200)", "Ellipse (95,205) (105,215)", "Font 42 0 ---- Arial",
               "Font 42 0 ---- Arial", factors);
    }
    void ExpectDoubled(const qsymbol::DrawFactors& factors) {
        // The flagged height is 42.33 until it is doubled and rounded.
        Expect("Polyline (100,200) (120,200)", "Ellipse (90,210) (110,230)", "Font 84 0 ---- Arial",
               "Font 85 0 ---- Arial", factors);
    }

    RecordingSurface surface;
    Symbol symbol;
};

TEST_F(SymbolFactors, Printer) {
    surface.kind = qsymbol::SurfaceKind::Printer;
    surface.name = u"GraphicBox"; // not asked for
    ExpectDoubled({.printer = 2, .screen = 7});
    ExpectUnscaled({.printer = 0, .screen = 7});
}

TEST_F(SymbolFactors, PrintPreview) {
    surface.name = u"PreviewPABox";
    ExpectDoubled({.printer = 2, .screen = 7});
    ExpectUnscaled({.printer = 0, .screen = 7});
}

TEST_F(SymbolFactors, MainDrawingArea) {
    surface.name = u"GraphicBox";
    ExpectDoubled({.printer = 7, .screen = 2});
    ExpectUnscaled({.printer = 7, .screen = 1});
    // A factor of 0 draws the geometry into one point, but leaves the texts.
    Expect("Polyline (100,200) (100,200)", "Ellipse (100,200) (100,200)", "Font 42 0 ---- Arial",
           "Font 42 0 ---- Arial", {.printer = 7, .screen = 0});
}

TEST_F(SymbolFactors, AnyOtherSurface) {
    for (const char16_t* name : {u"Picture1", u"", u"graphicbox", u"GraphicBox2", u"previewpabox"}) {
        surface.name = name;
        ExpectUnscaled({.printer = 7, .screen = 2});
        ExpectUnscaled({.printer = 0, .screen = 0});
    }
}

TEST(SymbolDrawing, FontHeightIsAtLeastOnePixel) {
    RecordingSurface surface;
    surface.name = u"GraphicBox";
    EXPECT_EQ(Outputs(surface, SymbolOf({Text({100, 200}, u"a")}), kAt, {.printer = 1, .screen = 0.001})[3],
              "Font 1 0 ---- Arial");
    EXPECT_EQ(Outputs(surface, SymbolOf({Text({100, 200}, u"a")}), kAt, {.printer = 1, .screen = -3})[3],
              "Font 1 0 ---- Arial");
}

TEST(SymbolDrawing, RecordsThatLackPointsAreLeftOut) {
    RecordingSurface surface;
    const Symbol symbol = SymbolOf(
        {Element(ElementType::Poly, {}), Element(ElementType::Circle, {}), Element(ElementType::Arc, {}),
         Element(ElementType::Arc, {{1, 1}, {2, 2}}), Element(ElementType::Text, {}),
         Element(ElementType::Undefined, {}), Element(ElementType::Undefined, {{1, 1}}),
         Element(static_cast<ElementType>(9), {{1, 1}}), Poly({{100, 200}})});
    EXPECT_EQ(Outputs(surface, symbol), (Calls{"ForeColor=11", "DrawWidth=2", "DrawStyle=0", "FillColor=0",
                                               "FillStyle=1", "Polyline (100,200)"}));
}

TEST(SymbolDrawing, ASurplusOfPointsIsLeftAside) {
    RecordingSurface surface;
    ElementRecord circle = Element(ElementType::Circle, {{100, 200}, {7, 7}});
    circle.radius = 50;
    ElementRecord arc = Element(ElementType::Arc, {{100, 200}, {150, 200}, {100, 150}, {7, 7}});
    arc.radius = 50;
    const Calls calls = Outputs(surface, SymbolOf({circle, arc}));
    EXPECT_EQ(calls[5], "Ellipse (95,195) (105,205)");
    EXPECT_EQ(calls[6], "Arc (95,195) (105,205) (105,200) (100,195)");
}

TEST(SymbolDrawing, OverflowEndsTheCall) {
    RecordingSurface surface;
    const Symbol symbol =
        SymbolOf({Poly({{100, 200}, {100, 200}}), Poly({{2147483647, 0}, {0, 0}}), Circle({0, 0}, 1)});
    EXPECT_EQ(support::ErrorNumberOf([&] { Outputs(surface, symbol); }), 6);
    Calls calls = surface.Take();
    EXPECT_EQ(calls.back(), "Polyline (100,200) (100,200)");
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(support::ErrorNumberOf([&] {
                  Outputs(surface, SymbolOf({Text({0, 0}, u"a")}), {.at = {}, .angle = infinity});
              }),
              6);
    EXPECT_EQ(support::ErrorNumberOf([&] {
                  Outputs(surface, SymbolOf({Text({0, 0}, u"a")}), {.at = {}, .angle = 1e9});
              }),
              6);
}

TEST(SymbolDrawing, EveryCallPutsItsPropertiesAnew) {
    RecordingSurface surface;
    const Symbol symbol = SymbolOf({Circle({100, 200}, 50)});
    EXPECT_EQ(Outputs(surface, symbol), Outputs(surface, symbol));
}

} // namespace
