#include "qsymbol/drawing/dxf_drawing.h"

#include "qmath/math_util.h"
#include "qsymbol/drawing/catalogue_drawing.h"
#include "qsymbol/drawing/drawing_text.h"
#include "qsymbol/drawing/line_weight.h"
#include "support/elements.h"
#include "support/error_number_of.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sstream>

namespace {

using qsymbol::DrawingUnit;
using qsymbol::DxfDrawing;
using qsymbol::ElementRecord;
using qsymbol::Symbol;
using support::Arc;
using support::Circle;
using support::Poly;
using support::Text;
using testing::ElementsAre;

/// Entities as "TYPE code=value …", without handles, owners, subclasses and heights above the plane.
using Entities = std::vector<std::string>;

/// What stands in a file behind the entity that begins like `from`, up to one of the type `to`.
Entities Between(const std::string& file, const std::string& from, const std::string& to) {
    Entities entities;
    std::istringstream in(file);
    for (std::string code, value; std::getline(in, code) && std::getline(in, value);) {
        code.pop_back();
        value.pop_back();
        if (code == "0")
            entities.push_back(value);
        else if (code != "5" && code != "330" && code != "100" && code != "30" && code != "31")
            entities.back() += ' ' + code + '=' + value;
    }
    const auto first = std::find_if(entities.begin(), entities.end(),
                                    [&](const std::string& entity) { return entity.starts_with(from); });
    const auto last = std::find_if(first, entities.end(),
                                   [&](const std::string& entity) { return entity.starts_with(to); });
    return first == last ? Entities() : Entities(first + 1, last);
}

Entities ModelSpace(const std::string& file) {
    return Between(file, "SECTION 2=ENTITIES", "ENDSEC");
}

Entities Drawn(const ElementRecord& record, DrawingUnit unit = DrawingUnit::Millimetre) {
    DxfDrawing drawing(unit);
    Symbol symbol;
    symbol.elements = {record};
    drawing.AddBlock(u"A", symbol);
    return Between(drawing.Compose(), "BLOCK 8=0 2=A", "ENDBLK");
}

ElementRecord Wide(ElementRecord record, std::int32_t width) {
    record.lineWidth = width;
    record.mainColor = 0x0000FF;
    return record;
}

ElementRecord Lettered(std::int32_t align, double degrees, bool styled) {
    ElementRecord record = Wide(Text({1000, 2000}, u"Bett"), 0);
    record.textAlign = align;
    record.textAngle = qmath::DegToRad(degrees);
    record.font->size = 72;
    record.font->bold = record.font->italic = record.font->underline = record.font->strikethrough = styled;
    return record;
}

TEST(DxfDrawing, EachElementAsItsEntity) {
    const std::string red = " 8=0 62=1 420=16711680";
    struct Case {
        const char* caption;
        ElementRecord record;
        Entities entities;
    };
    const Case cases[] = {
        {"line",
         Wide(Poly({{0, 0}, {1234, 50}}), 49),
         {"LINE" + red + " 370=50 10=0.0 20=0.0 11=12.34 21=-0.5"}},
        {"hairline",
         Wide(Poly({{0, 0}, {1, 0}, {1, 1}}), 0),
         {"LWPOLYLINE" + red + " 370=0 90=3 70=0 43=0.0 10=0.0 20=0.0 10=0.01 20=0.0 10=0.01 20=-0.01"}},
        {"line wider than any weight",
         Wide(Poly({{0, 0}, {100, 0}}), 212),
         {"LWPOLYLINE" + red + " 370=0 90=2 70=0 43=2.12 10=0.0 20=0.0 10=1.0 20=0.0"}},
        {"filled area without outline",
         Wide(Poly({{0, 0}, {100, 0}, {0, 100}}, true, 0x00FF00), 0),
         {"HATCH 8=0 62=3 420=65280 10=0.0 20=0.0 210=0.0 220=0.0 230=1.0 2=SOLID 70=1 71=0 91=1 92=3 72=0 "
          "73=1 "
          "93=3 10=0.0 20=0.0 10=1.0 20=0.0 10=0.0 20=-1.0 97=0 75=0 76=1 98=0"}},
        {"circle", Wide(Circle({500, 600}, 100), 13), {"CIRCLE" + red + " 370=13 10=5.0 20=-6.0 40=1.0"}},
        {"circle wider than any weight",
         Wide(Circle({0, 0}, 1000), 300),
         {"LWPOLYLINE" + red + " 370=0 90=2 70=1 43=3.0 10=10.0 20=0.0 42=1.0 10=-10.0 20=0.0 42=1.0"}},
        {"arc",
         Wide(Arc({0, 0}, 1000, {50, 0}, {0, -10}), 20),
         {"ARC" + red + " 370=20 10=0.0 20=0.0 40=10.0 50=0.0 51=90.0"}},
        {"whole arc",
         Wide(Arc({0, 0}, 1000, {50, 0}, {90, 0}), 20),
         {"CIRCLE" + red + " 370=20 10=0.0 20=0.0 40=10.0"}},
        {"wide arc",
         Wide(Arc({0, 0}, 1000, {-50, 0}, {50, 0}), 1000),
         {"LWPOLYLINE" + red +
          " 370=0 90=3 70=0 43=10.0 10=-10.0 20=0.0 42=0.4142135624 10=0.0 20=-10.0 "
          "42=0.4142135624 10=10.0 20=0.0"}},
        {"text on its base line",
         Lettered(24, 0, false),
         {"TEXT" + red + " 10=10.0 20=-20.0 40=18.1864 1=Bett 50=0.0 7=Arial"}},
        {"centred text below its anchor, turned, in all styles",
         Lettered(6, 90, true),
         {"TEXT" + red +
          " 10=32.987 20=-43.948898 40=18.1864 1=%%u%%kBett 50=90.0 7=Arial fett kursiv 72=1 "
          "11=32.987 21=-20.0"}},
        {"text that ends above its anchor",
         Lettered(8 + 2, 0, false),
         {"TEXT" + red +
          " 10=-35.1866 20=-14.6152 40=18.1864 1=Bett 50=0.0 7=Arial 72=2 11=10.0 21=-14.6152"}},
        {"undefined element", support::Element(qsymbol::ElementType::Undefined, {{0, 0}}), {}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(Drawn(each.record), each.entities) << each.caption;
}

TEST(DxfDrawing, AFilledCircleKeepsItsPenInside) {
    const Entities entities = Drawn(Wide(Circle({0, 0}, 1000, 0x00FF00), 100), DrawingUnit::Centimetre);
    ASSERT_EQ(entities.size(), 2U);
    EXPECT_THAT(entities[0],
                testing::HasSubstr(" 72=1 73=1 93=2 10=-0.95 20=0.0 42=1.0 10=0.95 20=0.0 42=1.0 "));
    EXPECT_EQ(entities[1], "CIRCLE 8=0 62=1 420=16711680 370=100 10=0.0 20=0.0 40=0.95");
}

TEST(DxfDrawing, ALongTextGoesOnInPieces) {
    ElementRecord record =
        Wide(Text({0, 0}, std::u16string(139, u'x') + u"\U0001F6BF" + std::u16string(10, u'y')), 0);
    record.textAlign = 24;
    const Entities entities = Drawn(record, DrawingUnit::Metre);
    ASSERT_EQ(entities.size(), 2U);
    EXPECT_THAT(entities[0], testing::HasSubstr(" 1=" + std::string(139, 'x') + " 50="));
    EXPECT_THAT(entities[1], testing::HasSubstr(" 10=0.14734 20=0.0")); // 139 × 0.5 × 2.12 mm
    EXPECT_THAT(entities[1], testing::HasSubstr(R"( 1=\U+D83D\U+DEBFyyyyyyyyyy 50=)"));
}

TEST(DxfDrawing, BlocksStandOnTheirReferencePointsAndInsertsTurn) {
    DxfDrawing drawing(DrawingUnit::Millimetre);
    Symbol symbol;
    symbol.refX = 1000;
    symbol.refY = 2000;
    symbol.elements = {Wide(Poly({{1000, 2000}, {3000, 2000}}), 0)};
    const auto block = drawing.AddBlock(u"Tür", symbol);
    EXPECT_EQ(drawing.NameOf(drawing.AddBlock(u"TÜR", symbol)), u"TÜR_2");
    drawing.Insert(block, drawing.AddLayer(u"Bad/WC"), {.at = {5000, 7000}, .angle = qmath::kPi / 2});
    EXPECT_EQ(drawing.AddLayer(u"bad_wc"), drawing.AddLayer(u"Bad/WC"));
    drawing.Draw(drawing.AddLayer(u"Wände")).Line({0, 0}, {1000, 1000});
    const std::string file = drawing.Compose();
    EXPECT_NE(file.find("\r\n2\r\nT\xFCr\r\n70\r\n0\r\n10\r\n10.0\r\n20\r\n-20.0\r\n"), std::string::npos);
    EXPECT_THAT(ModelSpace(file),
                ElementsAre("INSERT 8=Bad_WC 2=T\xFCr 10=50.0 20=-70.0 50=90.0",
                            "LINE 8=W\xE4nde 62=7 420=0 370=0 10=0.0 20=0.0 11=10.0 21=-10.0"));
    EXPECT_NE(file.find("$EXTMIN\r\n10\r\n0.0\r\n20\r\n-70.0\r\n"), std::string::npos);
    EXPECT_NE(file.find("$EXTMAX\r\n10\r\n50.0\r\n20\r\n0.0\r\n"), std::string::npos);
}

TEST(DxfDrawing, ASymbolThatCannotBeDrawnLeavesNoBlock) {
    DxfDrawing drawing(DrawingUnit::Millimetre);
    Symbol symbol;
    symbol.elements = {Circle({std::numeric_limits<std::int32_t>::max(), 0}, 1000)};
    EXPECT_EQ(support::ErrorNumberOf([&] { drawing.AddBlock(u"A", symbol); }), 6);
    symbol.elements.clear();
    EXPECT_EQ(drawing.NameOf(drawing.AddBlock(u"A", symbol)), u"A");
}

TEST(CatalogueDrawing, ARowForEachCategoryWithNames) {
    qsymbol::CatalogueDrawing catalogue(DrawingUnit::Millimetre);
    Symbol symbol;
    symbol.elements = {Wide(Poly({{0, 0}, {30000, 60000}}), 0)};
    catalogue.Add(u"Tisch", u"Möbel", symbol);
    catalogue.Add(u"Dose", u"", symbol);
    catalogue.Add(u"Bett", u"Möbel", symbol);
    const std::string file = catalogue.Compose();
    EXPECT_THAT(ModelSpace(file), ElementsAre(testing::HasSubstr("1=M\xF6"
                                                                 "bel"),
                                              "INSERT 8=M\xF6"
                                              "bel 2=Tisch 10=0.0 20=-333.33",
                                              testing::HasSubstr("TEXT 8=BESCHRIFTUNG 10="),
                                              testing::HasSubstr("2=Bett 10=500.0 20=-333.33"),
                                              testing::HasSubstr("1=Bett"), testing::HasSubstr("1=SYMBOLE"),
                                              testing::HasSubstr("INSERT 8=SYMBOLE 2=Dose 10=0.0"),
                                              testing::HasSubstr("1=Dose")));
}

TEST(CatalogueDrawing, HoldsSymbolsOfAnySizeAndNone) {
    EXPECT_NE(qsymbol::CatalogueDrawing(DrawingUnit::Metre).Compose().find("AC1018"), std::string::npos);
    qsymbol::CatalogueDrawing catalogue(DrawingUnit::Metre);
    constexpr std::int32_t kFar = std::numeric_limits<std::int32_t>::max();
    Symbol symbol;
    catalogue.Add(u"leer", u"", symbol);
    symbol.elements = {Poly({{-kFar, -kFar}, {kFar, kFar}})};
    catalogue.Add(u"riesig", u"", symbol);
    catalogue.Add(u"riesig", u"", symbol);
    EXPECT_NE(catalogue.Compose().find("riesig_2"), std::string::npos);
}

TEST(DrawingText, HoldsAnyText) {
    const char16_t odd[] = {u'a', 0, 0x1B, 0x7F, 0xDC00};
    EXPECT_EQ(qsymbol::DrawingText({odd, 5}), "a^@^[\\U+007F\\U+DC00");
    EXPECT_EQ(qsymbol::DrawingText(u"Höhe ≤ 90\n€^x"), "H\xF6he \\U+2264 90^J\\U+20AC^ x");
    EXPECT_EQ(qsymbol::DrawingText(u"\\U+0041 \\P"), "\\U+005CU+0041 \\P");
    EXPECT_EQ(qsymbol::ShownDrawingText(u"50 % %%d %"), "50 % %%%%%%d %");
}

TEST(LegalDxfName, HasNothingThatANameCannotHave) {
    EXPECT_EQ(qsymbol::LegalDxfName(u"Bad/WC: <1>|\"a\\b;c?d*e,f=g`h^"), u"Bad_WC_ _1___a_b_c_d_e_f_g_h_");
    EXPECT_EQ(qsymbol::LegalDxfName(u"  a b  "), u"a b");
    EXPECT_EQ(qsymbol::LegalDxfName(u"   "), u"_");
    EXPECT_EQ(qsymbol::LegalDxfName(u"a\tb"), u"a_b");
    EXPECT_EQ(qsymbol::LegalDxfName(std::u16string(300, u'x')).size(), 200U);
}

TEST(LineWeight, IsTheNearestThatDrawingsKnow) {
    EXPECT_EQ(qsymbol::LineWeightOf(0), 0);
    EXPECT_EQ(qsymbol::LineWeightOf(3), 5);
    EXPECT_EQ(qsymbol::LineWeightOf(205), 200);
    EXPECT_EQ(qsymbol::LineWeightOf(211), 211);
    EXPECT_EQ(qsymbol::LineWeightOf(212), std::nullopt);
}

TEST(TextStyles, OneForEachFontInEachStyle) {
    qsymbol::TextStyles styles;
    const auto add = [&](const char16_t* family, bool bold, bool italic) {
        styles.StyleFor({.bold = bold, .italic = italic, .name = family});
    };
    add(u"Arial", false, false);
    add(u"ARIAL", false, false);
    add(u"Times New Roman", true, true);
    add(u"Courier New", false, true);
    add(u"Verdana", true, false);
    add(u"Haus/Schrift", true, false);
    add(u"Standard", false, false);
    std::vector<std::string> rows;
    for (const auto& style : styles.All())
        rows.push_back(style.name + '|' + style.family + '|' + style.file + '|' +
                       std::to_string(qsymbol::FontFlags(style)));
    EXPECT_THAT(rows, ElementsAre("Arial|Arial|arial.ttf|34",
                                  "Times New Roman fett kursiv|Times New Roman|timesbi.ttf|50331666",
                                  "Courier New kursiv|Courier New|couri.ttf|16777265",
                                  "Verdana fett|Verdana|verdanab.ttf|33554466",
                                  "Haus_Schrift fett|Haus_Schrift|Haus_Schrift.ttf|33554466",
                                  "Standard_2|Standard|Standard.ttf|34"));
}

TEST(ColourNumbers, AreTheNearest) {
    qsymbol::ColourNumbers numbers;
    EXPECT_EQ(numbers.NearestTo(0x0000FF), 1);
    EXPECT_EQ(numbers.NearestTo(0x0102FE), 1);
    EXPECT_EQ(numbers.NearestTo(0), 7);
    EXPECT_EQ(numbers.NearestTo(0), 7);
    EXPECT_EQ(numbers.NearestTo(0xC0C0BF), 254);
}

} // namespace
