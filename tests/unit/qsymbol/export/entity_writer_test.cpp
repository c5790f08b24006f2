#include "qsymbol/export/entity_writer.h"

#include "qmath/math_util.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "unit/qsymbol/export/export_support.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using base::RunTimeError;
using export_test::Element;
using export_test::Export;
using export_test::Only;
using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;
using qsymbol::SymbolPosition;
using support::CaughtFrom;
using support::Expected;

constexpr std::int32_t kMaxLong = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMinLong = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kRed = 255;

ElementRecord Text(const char16_t* text) {
    ElementRecord element = Element(ElementType::Text, {{100, 200}});
    element.text = text;
    element.font.emplace();
    return element;
}

TEST(EntityWriter, OpenPolyline) {
    ElementRecord line = Element(ElementType::Poly, {{0, 0}, {50, -25}});
    line.mainColor = kRed;
    EXPECT_EQ(Export(Only(line)), "  0\r\nPOLYLINE\r\n  8\r\nSYMBOLE\r\n62\r\n1\r\n66\r\n     1\r\n"
                                  " 10\r\n0.0\r\n 20\r\n0.0\r\n 30\r\n0.0\r\n"
                                  "  0\r\nVERTEX\r\n  8\r\nSYMBOLE\r\n 10\r\n0.00000000000000\r\n"
                                  " 20\r\n0.00000000000000\r\n 30\r\n0.0\r\n"
                                  "  0\r\nVERTEX\r\n  8\r\nSYMBOLE\r\n 10\r\n0.00050000000000\r\n"
                                  " 20\r\n0.00025000000000\r\n 30\r\n0.0\r\n"
                                  "  0\r\nSEQEND\r\n  8\r\nSYMBOLE\r\n");
}

TEST(EntityWriter, ClosedPolylineRepeatsItsFirstPoint) {
    ElementRecord triangle = Element(ElementType::Poly, {{0, 0}, {100000, 0}, {0, 300000}});
    triangle.lineClosed = true;
    const auto vertex = [](const char* x, const char* y) {
        return std::string("  0\r\nVERTEX\r\n  8\r\nSYMBOLE\r\n 10\r\n") + x + "\r\n 20\r\n" + y +
               "\r\n 30\r\n0.0\r\n";
    };
    EXPECT_EQ(Export(Only(triangle, 1000000)),
              "  0\r\nPOLYLINE\r\n  8\r\nSYMBOLE\r\n62\r\n7\r\n66\r\n     1\r\n"
              " 10\r\n0.0\r\n 20\r\n0.0\r\n 30\r\n0.0\r\n" +
                  vertex("0.00000000000000", "10.00000000000000") +
                  vertex("1.00000000000000", "10.00000000000000") +
                  vertex("0.00000000000000", "7.00000000000000") +
                  vertex("0.00000000000000", "10.00000000000000") + "  0\r\nSEQEND\r\n  8\r\nSYMBOLE\r\n");
}

TEST(EntityWriter, FewerThanTwoPointsLeaveABareEnd) {
    const std::string bare = "  0\r\nSEQEND\r\n  8\r\nSYMBOLE\r\n";
    ElementRecord line = Element(ElementType::Poly, {{7, 8}});
    EXPECT_EQ(Export(Only(line)), bare);
    line.lineClosed = true;
    EXPECT_EQ(Export(Only(line)), bare);
    line.points.clear();
    EXPECT_EQ(Export(Only(line)), bare);
}

TEST(EntityWriter, TextEntity) {
    ElementRecord text = Text(u"Küche 10 €");
    text.mainColor = 0x030201; // red 1, green 2, blue 3: no colour number has it
    text.font->size = 10;
    text.textAngle = qmath::DegToRad(30);
    EXPECT_EQ(Export(Only(text, 1000)), "0\r\nTEXT\r\n8\r\nSYMBOLE\r\n10\r\n0.00100000000000\r\n"
                                        "20\r\n0.00800000000000\r\n30\r\n0.0\r\n40\r\n0.33333333333333\r\n"
                                        "1\r\nK\xFC"
                                        "che 10 \x80\r\n62\r\n7\r\n50\r\n30.00000000000000\r\n");
}

TEST(EntityWriter, TextAnglesAddUpWhileGeometryTurnsTheOtherWay) {
    ElementRecord text = Text(u"a");
    text.textAngle = qmath::DegToRad(-12.34);
    const std::string bytes = Export(Only(text), {.at = {0, 0}, .angle = qmath::DegToRad(90)});
    // A quarter turn counter-clockwise with y downwards: (100, 200) becomes (200, -100), mirrored (200, 100).
    EXPECT_NE(bytes.find("\r\n10\r\n0.00200000000000\r\n20\r\n0.00100000000000\r\n"), std::string::npos)
        << bytes;
    EXPECT_NE(bytes.find("\r\n50\r\n77.70000000000000\r\n"), std::string::npos) << bytes;
}

TEST(EntityWriter, TextAnglesAreNotBroughtIntoOneTurn) {
    ElementRecord text = Text(u"a");
    text.textAngle = qmath::DegToRad(-720.04);
    EXPECT_NE(Export(Only(text)).find("\r\n50\r\n-720.00000000000000\r\n"), std::string::npos);
    text.textAngle = qmath::DegToRad(-0.04);
    EXPECT_NE(Export(Only(text)).find("\r\n50\r\n0.00000000000000\r\n"), std::string::npos);
}

TEST(EntityWriter, TextHeightIsAThirtiethOfTheWholeSize) {
    ElementRecord text = Text(u"a");
    const auto height = [&](double size) {
        text.font->size = size;
        const std::string bytes = Export(Only(text));
        const std::size_t at = bytes.find("\r\n40\r\n") + 6;
        return bytes.substr(at, bytes.find('\r', at) - at);
    };
    EXPECT_EQ(height(6), "0.20000000000000");
    EXPECT_EQ(height(8.25), "0.26666666666667");
    EXPECT_EQ(height(8.75), "0.30000000000000");
    EXPECT_EQ(height(600), "20.00000000000000");
    text.lineClosed = true; // sizes in hundredths are written like any other
    EXPECT_EQ(height(600), "20.00000000000000");
}

TEST(EntityWriter, CharactersOutsideTheCodePage) {
    EXPECT_NE(Export(Only(Text(u"Ω!"))).find("\r\n1\r\n\\U+03A9!\r\n"), std::string::npos);
}

TEST(EntityWriter, ATextWithoutPointsIsLeftOut) {
    ElementRecord text = Text(u"a");
    text.points.clear();
    EXPECT_EQ(Export(Only(text)), "");
}

TEST(EntityWriter, ATextWithoutFontIsAnError) {
    ElementRecord text = Text(u"a");
    text.font.reset();
    EXPECT_EQ(CaughtFrom([&] { Export(Only(text)); }), Expected(RunTimeError::ObjectNotSet));
}

TEST(EntityWriter, UndefinedElementsWriteNothing) {
    EXPECT_EQ(Export(Only(Element(ElementType::Undefined, {{1, 2}, {3, 4}}))), "");
    EXPECT_EQ(Export(Only(Element(static_cast<ElementType>(17), {{1, 2}, {3, 4}}))), "");
    EXPECT_EQ(Export(Only(Element(static_cast<ElementType>(-1), {}))), "");
}

TEST(EntityWriter, ElementsInTheirOrder) {
    const std::string bytes = Export(support::WashRoom());
    const std::size_t line = bytes.find("POLYLINE");
    const std::size_t arc = bytes.find("\r\nARC\r\n");
    const std::size_t text = bytes.find("\r\nTEXT\r\n");
    ASSERT_NE(text, std::string::npos);
    EXPECT_LT(line, arc);
    EXPECT_LT(arc, text);
}

TEST(EntityWriter, TheReferencePointLandsOnTheInsertionPoint) {
    Symbol symbol = Only(Element(ElementType::Poly, {{300, 400}, {300, 500}}), 1000);
    symbol.refX = 300;
    symbol.refY = 400;
    const SymbolPosition position{.at = {7000, -2000}, .angle = qmath::DegToRad(90)};
    for (const double factor : {1.0, 2.0, -0.5})
        EXPECT_NE(
            Export(symbol, position, factor).find(" 10\r\n0.07000000000000\r\n 20\r\n0.03000000000000\r\n"),
            std::string::npos)
            << factor;
    // The second point lies 100 below the first; a quarter turn puts it 100 to its right.
    EXPECT_NE(Export(symbol, position, 2).find(" 10\r\n0.07200000000000\r\n 20\r\n0.03000000000000\r\n"),
              std::string::npos);
}

TEST(EntityWriter, MirroredPointsStayIn32Bits) {
    Symbol line = Only(Element(ElementType::Poly, {{0, -1}, {0, 0}}), kMaxLong);
    EXPECT_EQ(CaughtFrom([&] { Export(line); }), Expected(RunTimeError::Overflow));
    Symbol text = Only(Text(u"a"), kMinLong);
    EXPECT_EQ(CaughtFrom([&] { Export(text); }), Expected(RunTimeError::Overflow));
    line.etagenbreite = kMaxLong - 1;
    EXPECT_NE(Export(line).find(" 20\r\n21474.83647000000000\r\n"), std::string::npos);
}

TEST(EntityWriter, MirroredCentresDoNot) {
    ElementRecord circle = Element(ElementType::Circle, {{0, kMinLong}});
    circle.radius = 1;
    EXPECT_NE(Export(Only(circle, kMaxLong)).find("\r\n20\r\n42949.67295000000000\r\n"), std::string::npos);
}

TEST(EntityWriter, PlacedPointsStayIn32Bits) {
    const Symbol symbol = Only(Element(ElementType::Poly, {{0, 0}, {kMaxLong, 0}}));
    EXPECT_EQ(CaughtFrom([&] { Export(symbol, {.at = {1, 0}}); }), Expected(RunTimeError::Overflow));
    EXPECT_EQ(CaughtFrom([&] { Export(symbol, {}, 1.5); }), Expected(RunTimeError::Overflow));
    EXPECT_EQ(
        CaughtFrom([&] { Export(symbol, {.at = {}, .angle = std::numeric_limits<double>::quiet_NaN()}); }),
        Expected(RunTimeError::Overflow));
}

TEST(EntityWriter, NumbersOfATextStayInTheirRange) {
    ElementRecord text = Text(u"a");
    text.textAngle = 1e9;
    EXPECT_EQ(CaughtFrom([&] { Export(Only(text)); }), Expected(RunTimeError::Overflow));
    text.textAngle = 0;
    text.font->size = std::numeric_limits<double>::infinity();
    EXPECT_EQ(CaughtFrom([&] { Export(Only(text)); }), Expected(RunTimeError::Overflow));
}

} // namespace
