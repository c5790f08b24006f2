#include "qsymbol/svg/svg_document.h"

#include "qmath/math_util.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/svg/xml_text.h"
#include "support/elements.h"
#include "support/scaled_transformation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using qsymbol::ElementRecord;
using qsymbol::Symbol;
using support::Arc;
using support::Circle;
using support::Poly;
using support::Text;
using testing::HasSubstr;
using testing::Not;

/// The elements that a record is drawn as.
std::string Elements(std::vector<ElementRecord> records) {
    Symbol symbol;
    symbol.elements = std::move(records);
    qsymbol::SvgSurface surface;
    qsymbol::DrawToSvg(symbol, surface);
    return std::string(surface.Elements());
}

struct Case {
    const char* caption;
    ElementRecord record;
    const char* elements;
};

ElementRecord Wide(ElementRecord record, std::int32_t width) {
    record.lineWidth = width;
    return record;
}

ElementRecord Lettered(std::int32_t align, double degrees, bool styled = false, std::int32_t bkMode = 1) {
    ElementRecord record = Text({1000, 2000}, u"Tür");
    record.textAlign = align;
    record.textAngle = qmath::DegToRad(degrees);
    record.textBkMode = bkMode;
    record.font->size = 72;
    record.font->bold = record.font->italic = record.font->underline = record.font->strikethrough = styled;
    return record;
}

TEST(SvgSurface, EachElementAsItsShape) {
    const Case cases[] = {
        {"line with its width", Poly({{0, 0}, {1234, -50}}),
         R"(<path stroke="#0b0000" stroke-width="0.2" d="M0 0L12.34 -0.5"/>)"},
        {"hairline that stays thin", Wide(Poly({{0, 0}, {100, 0}}), 0),
         R"(<path stroke="#0b0000" vector-effect="non-scaling-stroke" d="M0 0L1 0"/>)"},
        {"filled area", Poly({{0, 0}, {100, 0}, {100, 100}}, true, 0x0000FF),
         R"(<path fill="#ff0000" stroke="#0b0000" stroke-width="0.2" d="M0 0L1 0L1 1Z"/>)"},
        {"area without outline", Wide(Poly({{0, 0}, {100, 0}, {100, 100}}, true, 0xFF0000), 0),
         R"(<path fill="#0000ff" d="M0 0L1 0L1 1Z"/>)"},
        {"open line is not filled", Poly({{0, 0}, {100, 0}, {100, 100}}, false, 0xFF),
         R"(<path stroke="#0b0000" stroke-width="0.2" d="M0 0L1 0L1 1"/>)"},
        {"circle", Circle({500, 600}, 100),
         R"(<circle cx="5" cy="6" r="1" stroke="#0b0000" stroke-width="0.2"/>)"},
        {"pen of a filled circle lies inside", Circle({500, 600}, 100, 0xFF),
         R"(<circle cx="5" cy="6" r="0.9" fill="#ff0000" stroke="#0b0000" stroke-width="0.2"/>)"},
        {"pen wider than its filled circle", Wide(Circle({500, 600}, 100, 0xFF), 300),
         R"(<circle cx="5" cy="6" r="1" fill="#0b0000"/>)"},
        {"circle without radius", Circle({500, 600}, 0), ""},
        {"arc, counter-clockwise", Arc({0, 0}, 1000, {5000, 0}, {0, -1000}),
         R"(<path stroke="#0b0000" stroke-width="0.2" d="M10 0A10 10 0 0 0 0 -10"/>)"},
        {"long arc", Arc({0, 0}, 1000, {0, -1000}, {1000, 0}),
         R"(<path stroke="#0b0000" stroke-width="0.2" d="M0 -10A10 10 0 1 0 10 0"/>)"},
        {"arc over the whole turn", Arc({0, 0}, 1000, {0, -1000}, {0, -10}),
         R"(<path stroke="#0b0000" stroke-width="0.2" d="M0 -10A10 10 0 0 0 0 10A10 10 0 0 0 0 -10"/>)"},
        {"text on its base line", Lettered(24, 0),
         R"x(<text x="10" y="20" font-family="'Arial',sans-serif" font-size="25.4" xml:space="preserve" fill="#0b0000">Tür</text>)x"},
        {"text below its anchor, turned", Lettered(2, 90),
         R"x(<text x="32.987" y="20" transform="rotate(-90 32.987 20)" font-family="'Arial',sans-serif" font-size="25.4" text-anchor="end" xml:space="preserve" fill="#0b0000">Tür</text>)x"},
        {"text above its anchor, all styles", Lettered(8 + 6, 0, true),
         R"x(<text x="10" y="14.615" font-family="'Arial',sans-serif" font-size="25.4" font-weight="bold" font-style="italic" text-decoration="underline line-through" text-anchor="middle" xml:space="preserve" fill="#0b0000">Tür</text>)x"},
        {"text from right to left", Lettered(24 + 256, 0),
         R"x(<text x="10" y="20" font-family="'Arial',sans-serif" font-size="25.4" text-anchor="end" direction="rtl" unicode-bidi="embed" xml:space="preserve" fill="#0b0000">Tür</text>)x"},
        {"text on an opaque ground", Lettered(24, 0, false, 2),
         R"x(<text x="10" y="20" font-family="'Arial',sans-serif" font-size="25.4" filter="url(#qsymbol-opaque)" xml:space="preserve" fill="#0b0000">Tür</text>)x"},
        {"undefined element", support::Element(qsymbol::ElementType::Undefined, {{0, 0}}), ""},
    };
    for (const Case& each : cases) {
        const std::string expected = *each.elements == '\0' ? "" : std::string(each.elements) + "\n";
        EXPECT_EQ(Elements({each.record}), expected) << each.caption;
    }
}

TEST(SvgSurface, NeighboursOfOnePaintShareAPathUnlessTheyAreFilled) {
    EXPECT_EQ(Elements({Poly({{0, 0}, {100, 0}}), Poly({{0, 100}, {100, 100}}),
                        Arc({0, 0}, 100, {100, 0}, {0, -100})}),
              "<path stroke=\"#0b0000\" stroke-width=\"0.2\" d=\"M0 0L1 0M0 1L1 1M1 0A1 1 0 0 0 0 -1\"/>\n");
    const ElementRecord area = Poly({{0, 0}, {100, 0}, {100, 100}}, true, 0xFF);
    const std::string one = Elements({area});
    EXPECT_EQ(Elements({area, area}), one + one);
}

TEST(SvgSurface, FamiliesCannotBreakOut) {
    ElementRecord record = Text({0, 0}, u"a");
    record.font->name = u"O'Neil\"><script>;\\ & Söhne";
    EXPECT_THAT(Elements({record}), HasSubstr("font-family=\"'ONeil&gt;script&gt;;  Söhne',sans-serif\""));
    record.font->name = u"Times New Roman";
    EXPECT_THAT(Elements({record}), HasSubstr("'Times New Roman',serif"));
    record.font->name = u"COURIER NEW";
    EXPECT_THAT(Elements({record}), HasSubstr("'COURIER NEW',monospace"));
}

TEST(SvgDocument, IsTrueToScale) {
    Symbol symbol;
    symbol.filePath = u"/k/Tür & Tor.syt";
    symbol.width = 77;
    symbol.elements = {Poly({{-1000, 0}, {9000, 5000}}), Circle({9000, 5000}, 1000)};
    EXPECT_EQ(qsymbol::SymbolSvg(symbol),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"110.2mm\" height=\"60.2mm\" "
              "viewBox=\"-10.1 -0.1 110.2 60.2\" overflow=\"visible\">\n"
              "<title>Tür &amp; Tor</title>\n"
              "<g fill=\"none\" fill-rule=\"evenodd\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n"
              "<path stroke=\"#0b0000\" stroke-width=\"0.2\" d=\"M-10 0L90 50\"/>\n"
              "<circle cx=\"90\" cy=\"50\" r=\"10\" stroke=\"#0b0000\" stroke-width=\"0.2\"/>\n"
              "</g>\n</svg>\n");
}

TEST(SvgDocument, AnArcCountsOnlyWhereItRuns) {
    Symbol symbol;
    symbol.elements = {Wide(Arc({0, 0}, 1000, {1000, 0}, {0, -1000}), 0)};
    EXPECT_THAT(qsymbol::SymbolSvg(symbol), HasSubstr("viewBox=\"0 -10 10 10\""));
    symbol.elements = {Wide(Arc({0, 0}, 1000, {0, 1000}, {1000, 1000}), 0)};
    EXPECT_THAT(qsymbol::SymbolSvg(symbol), HasSubstr("viewBox=\"0 7.071 7.071 2.929\""));
}

TEST(SvgDocument, HasAtLeastAMillimetreInBothDirections) {
    Symbol symbol;
    EXPECT_THAT(qsymbol::SymbolSvg(symbol), HasSubstr("viewBox=\"-0.5 -0.5 1 1\""));
    symbol.width = 30000;
    symbol.height = 20000;
    EXPECT_THAT(qsymbol::SymbolSvg(symbol), HasSubstr("viewBox=\"0 0 300 200\""));
    symbol.elements = {Wide(Poly({{0, 0}, {5000, 0}}), 0)};
    EXPECT_THAT(qsymbol::SymbolSvg(symbol),
                HasSubstr("width=\"50mm\" height=\"1mm\" viewBox=\"0 -0.5 50 1\""));
}

TEST(SvgDocument, ExplainsOpaqueTextsOnlyWhereThereAreSome) {
    Symbol symbol;
    symbol.elements = {Lettered(24, 0)};
    EXPECT_THAT(qsymbol::SymbolSvg(symbol), Not(HasSubstr("<filter")));
    symbol.elements = {Lettered(24, 0, false, 2)};
    EXPECT_THAT(qsymbol::SymbolSvg(symbol), HasSubstr("<defs><filter id=\"qsymbol-opaque\""));
}

TEST(XmlText, HoldsAnyText) {
    EXPECT_EQ(qsymbol::XmlText(u"<a href=\"x\">'&'</a>"),
              "&lt;a href=&quot;x&quot;&gt;&#39;&amp;&#39;&lt;/a&gt;");
    EXPECT_EQ(qsymbol::XmlText(std::u16string_view(u"a\0b\x1B\x7F\x85\nc\td", 10)), "ab c d");
    EXPECT_EQ(qsymbol::XmlText(u"Küche ≤ 90 \U0001F6BF"), "Küche ≤ 90 \U0001F6BF");
    const char16_t broken[] = {0xD800, u'a', 0xDC00, 0xFFFE, 0xFFFF, 0xFFFD, 0xDBFF};
    EXPECT_EQ(qsymbol::XmlText({broken, 7}), "a\xEF\xBF\xBD");
}

} // namespace

/// A line without a second point, or without a pen, is nothing.
TEST(SvgSurface, ALineOfOnePointIsNotDrawn) {
    qsymbol::SvgSurface surface;
    surface.Polyline(std::vector<qmath::Point>{{3, 4}});
    EXPECT_EQ(surface.Elements(), "");
    surface.Polyline(std::vector<qmath::Point>{{3, 4}, {5, 4}});
    EXPECT_NE(surface.Elements(), "");
}
