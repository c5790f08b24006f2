#include "qsymbol/draw/element_drawing.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "support/elements.h"
#include "support/recording_surface.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

namespace {

using support::Calls;
using support::Text;

/// What of a drawing concerns texts.
Calls TextCalls(const support::RecordingSurface& surface) {
    Calls texts;
    for (const std::string& call : surface.calls)
        if (call.starts_with("Font") || call.starts_with("Text (") || call.starts_with("TextPath") ||
            call == "ReleaseFont")
            texts.push_back(call);
    return texts;
}

Calls DrawnIn(std::int32_t drawMode, const std::vector<qsymbol::ElementRecord>& elements) {
    qsymbol::Symbol symbol;
    symbol.elements = elements;
    support::RecordingSurface surface;
    surface.drawMode = drawMode;
    qsymbol::DrawSymbol(symbol, {}, surface, support::ScaledTransformation(10), qsymbol::kUnscaled);
    return TextCalls(surface);
}

TEST(TextOutput, AFontIsKeptWhileTextsAskForTheSame) {
    qsymbol::ElementRecord large = Text({0, 0}, u"c");
    large.font->size = 12;
    qsymbol::ElementRecord turned = Text({0, 0}, u"d");
    turned.textAngle = 1;
    qsymbol::ElementRecord bare = Text({0, 0}, u"e");
    bare.font.reset();
    EXPECT_EQ(DrawnIn(13, {Text({0, 0}, u"a"), support::Circle({0, 0}, 5), Text({0, 0}, u"b"), large, large,
                           turned}),
              (Calls{"Font 21 0 ---- Arial", "Text (0,0) a", "Text (0,0) b", "ReleaseFont",
                     "Font 42 0 ---- Arial", "Text (0,0) c", "Text (0,0) c", "ReleaseFont",
                     "Font 21 573 ---- Arial", "Text (0,0) d", "ReleaseFont"}));
    // The surface's own font comes back for a text without one.
    EXPECT_EQ(DrawnIn(13, {Text({0, 0}, u"a"), bare, Text({0, 0}, u"b")}),
              (Calls{"Font 21 0 ---- Arial", "Text (0,0) a", "ReleaseFont", "Text (0,0) e",
                     "Font 21 0 ---- Arial", "Text (0,0) b", "ReleaseFont"}));
}

TEST(TextOutput, AnEditorsTextInAnInvertingModeIsAPath) {
    support::RecordingSurface surface;
    surface.drawMode = 10;
    qsymbol::ElementRecord text = Text({100, 200}, u"a");
    text.textBkMode = 2;
    qsymbol::DrawElement(text, surface, support::ScaledTransformation(10));
    EXPECT_EQ(surface.Take(), (Calls{"ForeColor=11", "DrawMode?", "TextAlign=0", "BkMode=2",
                                     "Font 21 0 ---- Arial", "TextPath (10,20) a", "ReleaseFont"}));
    // Only a text makes the surface be asked; a collection puts the mode itself.
    qsymbol::DrawElement(support::Circle({0, 0}, 5), surface, support::ScaledTransformation(10));
    qsymbol::DrawElements(
        1, [&](std::size_t) { return text; }, surface, support::ScaledTransformation(10));
    const Calls calls = surface.Take();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "DrawMode?"), 0);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "Text (10,20) a"), 1);
}

TEST(ArcOutput, EndsOnOnePixel) {
    const auto drawn = [](qmath::Point start, qmath::Point end) {
        support::RecordingSurface surface;
        qsymbol::DrawElement(support::Arc({0, 0}, 500, start, end), surface,
                             support::ScaledTransformation(10));
        return surface.calls.back();
    };
    EXPECT_EQ(drawn({500, 0}, {500, -3}), "Polyline (50,0) (51,0)"); // a short sweep is a pixel
    EXPECT_EQ(drawn({500, -3}, {500, 0}),
              "Arc (-50,-50) (50,50) (50,0) (50,0)");                            // the long way is the circle
    EXPECT_EQ(drawn({500, 0}, {500, 0}), "Arc (-50,-50) (50,50) (50,0) (50,0)"); // and so is a full turn
    EXPECT_EQ(drawn({500, 0}, {900, 0}), "Arc (-50,-50) (50,50) (50,0) (50,0)"); // in one direction
    EXPECT_EQ(drawn({500, 0}, {400, -300}), "Arc (-50,-50) (50,50) (50,0) (40,-30)");
}

} // namespace
