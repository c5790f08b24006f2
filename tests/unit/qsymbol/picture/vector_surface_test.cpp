#include "qsymbol/picture/font_metrics.h"
#include "qsymbol/picture/short_number.h"
#include "qsymbol/svg/svg_surface.h"

#include <gtest/gtest.h>

#include <limits>
#include <span>

namespace {

TEST(VectorSurface, AnswersLikeAPictureBoxInCopyMode) {
    qsymbol::SvgSurface surface;
    EXPECT_EQ(surface.Kind(), qsymbol::SurfaceKind::PictureBox);
    EXPECT_EQ(surface.Name(), u"");
    surface.PutDrawMode(10);
    EXPECT_EQ(surface.DrawMode(), 13);
    surface.PutDrawWidth(7);
    surface.PutDrawStyle(5);
    surface.PutForeColor(9);
    surface.PutFillStyle(0);
    EXPECT_EQ(surface.DrawWidth(), 7);
    EXPECT_EQ(surface.DrawStyle(), 5);
    EXPECT_EQ(surface.ForeColor(), 9);
    EXPECT_EQ(surface.FillStyle(), 0);
}

TEST(VectorSurface, DrawsItsOwnLineAndNoHandles) {
    qsymbol::SvgSurface surface;
    surface.Invert({0, 0}, 7, 7);
    EXPECT_TRUE(surface.Bounds().IsEmpty());
    surface.PutForeColor(static_cast<std::int32_t>(0x80000012)); // colours of the system lose their flag
    surface.Line({0, 0}, {100, 200});
    EXPECT_EQ(surface.Elements(),
              "<path stroke=\"#120000\" vector-effect=\"non-scaling-stroke\" d=\"M0 0L1 2\"/>\n");
    EXPECT_EQ(surface.Bounds().Height(), 200);
}

TEST(VectorSurface, WhatHasNeitherLineNorFillOrNoSizeLeavesNothing) {
    qsymbol::SvgSurface surface;
    const qmath::Rect box{0, 0, 100, 100};
    const qmath::Point corners[] = {{0, 0}, {100, 0}, {0, 100}};
    surface.Ellipse({5, 5, 5, 5});
    surface.Arc({5, 5, 5, 5}, {9, 5}, {5, 9});
    surface.Polyline(std::span(corners).first(1));
    surface.PutDrawStyle(5); // no line
    surface.PutFillStyle(1); // no fill
    surface.Polygon(corners);
    surface.Polyline(corners);
    surface.Ellipse(box);
    surface.Arc(box, {100, 50}, {50, 0});
    EXPECT_TRUE(surface.Bounds().IsEmpty());
    EXPECT_EQ(surface.Elements(), "");
    surface.PutDrawStyle(6); // inside
    surface.PutFillStyle(0);
    surface.PutDrawWidth(0);
    surface.Ellipse(box);
    EXPECT_EQ(surface.Bounds().Width(), 100);
}

TEST(VectorSurface, WritesInTheStandardFontWithoutAnother) {
    qsymbol::SvgSurface surface;
    surface.SetTextAlign(24);
    surface.WriteTextAsPath({0, 0}, u"a");
    EXPECT_NE(surface.Elements().find("font-size=\"2.12\""), std::string_view::npos);
}

TEST(FontMetrics, MeasureKnownFamiliesInAnyCase) {
    EXPECT_EQ(qsymbol::MetricsOf(u"TIMES new Roman").capital, 0.662);
    EXPECT_EQ(qsymbol::MetricsOf(u"Nobody's").family, u"arial");
    const auto width = [](std::u16string_view text, const char16_t* family, bool bold = false) {
        return qsymbol::TextWidth(text, {.height = 1000, .escapement = 0, .bold = bold, .name = family});
    };
    EXPECT_DOUBLE_EQ(width(u"Bett", u"Arial"), 667 + 556 + 278 + 278);
    EXPECT_DOUBLE_EQ(width(u"Bett", u"Arial", true), 1.06 * (667 + 556 + 278 + 278));
    EXPECT_DOUBLE_EQ(width(u"Bett", u"Courier New", true), 4 * 600);
    EXPECT_DOUBLE_EQ(width(u"ü漢\n\U0001F6BF", u"Arial"), 600 + 1000 + 1000);
    EXPECT_DOUBLE_EQ(width(u"a\n\x7F", u"Courier New"), 600) << "controls have no width in any font";
}

TEST(ShortNumber, HasNoNeedlessDigits) {
    const auto text = [](double value, int decimals) {
        std::string out = "x";
        qsymbol::AppendShort(out, value, decimals);
        return out;
    };
    EXPECT_EQ(text(12.5, 3), "x12.5");
    EXPECT_EQ(text(100, 3), "x100");
    EXPECT_EQ(text(-0.0001, 3), "x0");
    EXPECT_EQ(text(-1.9999, 2), "x-2");
    EXPECT_EQ(text(40, 0), "x40");
    EXPECT_EQ(text(std::numeric_limits<double>::max(), 2).size(), 310U);
}

} // namespace
