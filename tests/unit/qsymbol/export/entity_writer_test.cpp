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

TEST(EntityWriter, ATextWithoutFontIsAnError) {
    ElementRecord text = Text(u"a");
    text.font.reset();
    EXPECT_EQ(CaughtFrom([&] { Export(Only(text)); }), Expected(RunTimeError::ObjectNotSet));
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
