#include "qplan/model/symbol_reach.h"

#include "qmath/box.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/svg/svg_surface.h"
#include "support/elements.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

namespace {

using qplan::ReachOf;
using qsymbol::ElementRecord;
using support::Arc;

qsymbol::Symbol Of(const ElementRecord& element) {
    qsymbol::Symbol symbol;
    symbol.elements.push_back(element);
    return symbol;
}

ElementRecord Label(std::u16string font, std::int32_t align, double angle, bool isFlagged = false) {
    ElementRecord text = support::Text({100, 200}, u"WWWWWW");
    text.font->name = std::move(font);
    text.font->size = isFlagged ? 1200 : 12;
    text.lineClosed = isFlagged;
    text.textAlign = align;
    text.textAngle = angle;
    return text;
}

TEST(SymbolReach, HoldsWhateverIsDrawn) {
    constexpr std::int32_t kLeft = 24;
    constexpr std::int32_t kRight = 26;
    constexpr std::int32_t kCentre = 30;
    const std::vector<std::pair<const char*, ElementRecord>> elements{
        {"line", support::Poly({{-70, 0}, {300, 900}})},
        {"circle", support::Circle({50, 60}, 700)},
        {"radius below zero", support::Circle({50, 60}, -700)},
        {"quarter", Arc({0, 0}, 1000, {1000, 0}, {0, -1000})},
        {"three quarters", Arc({0, 0}, 1000, {0, -1000}, {1000, 0})},
        {"nearly nothing", Arc({0, 0}, 1000, {1000, 0}, {999, -45})},
        {"nearly a full turn", Arc({0, 0}, 1000, {999, -45}, {1000, 0})},
        {"full turn", Arc({0, 0}, 1000, {1000, 0}, {1000, 0})},
        {"start near the centre", Arc({0, 0}, 1000, {3, 0}, {0, -1000})},
        {"end near the centre", Arc({0, 0}, 1000, {1000, 0}, {0, -3})},
        {"text", Label(u"Arial", kLeft, 0)},
        {"text to the left", Label(u"Arial", kRight, 0)},
        {"text around its point", Label(u"Times New Roman", kCentre, 2)},
        {"text in a wide font", Label(u"Courier New", kRight, 2)},
        {"text with its size in hundredths", Label(u"Arial", kLeft, -1, true)},
    };
    for (const auto& [name, element] : elements) {
        const qsymbol::Symbol symbol = Of(element);
        qsymbol::SvgSurface surface;
        DrawSymbol(symbol, {}, surface, support::ScaledTransformation(1), qsymbol::kUnscaled);
        const qmath::Box drawn = surface.Bounds();
        ASSERT_FALSE(drawn.IsEmpty()) << name;
        const qplan::SymbolReach reach = ReachOf(symbol);
        const double around = reach.pixels + 1; // rounding to whole pixels, here a unit each
        EXPECT_LE(reach.drawn.left - around, drawn.left) << name;
        EXPECT_LE(reach.drawn.top - around, drawn.top) << name;
        EXPECT_GE(reach.drawn.right + around, drawn.right) << name;
        EXPECT_GE(reach.drawn.bottom + around, drawn.bottom) << name;
        EXPECT_FALSE(reach.IsUnlimited()) << name;
    }
}

TEST(SymbolReach, AnArcReachesNoFurtherThanItsSweep) {
    EXPECT_GE(ReachOf(Of(Arc({0, 0}, 1000, {1000, 0}, {0, -1000}))).drawn.left, -20)
        << "not more than its pen";
    ElementRecord unfinished = Arc({0, 0}, 1000, {1000, 0}, {0, -1000});
    unfinished.points.pop_back();
    EXPECT_EQ(ReachOf(Of(unfinished)).drawn.left, -1010) << "without an end it may be the whole circle";
}

TEST(SymbolReach, OfATextInTheSurfacesFontNothingIsKnown) {
    ElementRecord text = support::Text({0, 0}, u"a");
    text.font.reset();
    EXPECT_EQ(ReachOf(Of(text)).pixels, std::numeric_limits<double>::infinity());
}

TEST(SymbolReach, AnElementOfAnUnknownKindIsNowhere) {
    const qsymbol::Symbol symbol =
        Of(support::Element(static_cast<qsymbol::ElementType>(9), {{0, 0}, {900, 0}, {0, 900}}));
    const auto map = support::ScaledTransformation(1);
    qsymbol::SvgSurface surface;
    DrawSymbol(symbol, {}, surface, map, qsymbol::kUnscaled);
    EXPECT_TRUE(surface.Bounds().IsEmpty());
    EXPECT_FALSE(CatchPt(symbol, {}, 1, map, 0, 0, 5));
    EXPECT_TRUE(symbol.elements.Extent().drawn.IsEmpty());
    EXPECT_GE(ReachOf(symbol).drawn.right, 900) << "its points count for the drawing's window";
}

TEST(SymbolReach, ElementsWithoutPointsReachNowhere) {
    EXPECT_TRUE(ReachOf(Of(support::Poly({}))).drawn.IsEmpty());
}

} // namespace
