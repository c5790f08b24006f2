#include "qsymbol/files/binary_writer.h"

#include "qsymbol/files/binary_reader.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace {

using base::RunTimeError;
using qsymbol::Symbol;
using support::CaughtFrom;
using support::Expected;
using namespace std::string_view_literals;

class BinaryWriter : public testing::Test {
protected:
    support::TestEnvironment world_;

    std::string Compose(const Symbol& symbol) { return ComposeBinary(symbol, world_.InMemory()); }
    Symbol Back(const Symbol& symbol) {
        Symbol back;
        ParseBinary(back, Compose(symbol), world_.InMemory());
        return back;
    }
};

TEST_F(BinaryWriter, ByteForByte) {
    Symbol symbol;
    symbol.width = 1;
    symbol.height = -1;
    symbol.refX = 256;
    symbol.refY = 0x01020304;
    symbol.elements.resize(2);
    symbol.elements[0].type = qsymbol::ElementType::Text;
    symbol.elements[0].lineClosed = true;
    symbol.elements[0].lineWidth = 2;
    symbol.elements[0].textAlign = 3;
    symbol.elements[0].textBkMode = 4;
    symbol.elements[0].textAngle = 1.0;
    symbol.elements[0].radius = 5;
    symbol.elements[0].mainColor = 6;
    symbol.elements[0].fillColor = 7;
    symbol.elements[0].text = u"ü";
    symbol.elements[0].points = {{8, 9}};
    symbol.elements[0].font = qsymbol::FontRecord{u"A", 10, true, false, false, true};
    const std::string_view expected = "\3\0SYM"
                                      "\1\0\0\0\xFF\xFF\xFF\xFF\0\1\0\0\4\3\2\1"
                                      "\1\0\0\0"
                                      // the text element
                                      "\4\0\0\0\xFF\xFF\2\0\0\0\3\0\0\0\4\0\0\0"
                                      "\0\0\0\0\0\0\xF0\x3F"
                                      "\5\0\0\0\6\0\0\0\7\0\0\0"
                                      "\1\0\xFC"
                                      "\0\0\0\0\x8\0\0\0\x9\0\0\0"
                                      "\xFF\xFF\xFF\xFF\0\0\1\0A\xA\0\0\0\0\0\xFF\xFF"
                                      // the undefined element
                                      "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\1\0\0\0"
                                      "\0\0\0\0\0\0\0\0"
                                      "\0\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF"
                                      "\0\0"
                                      "\xFF\xFF\xFF\xFF"
                                      "\0\0"sv;
    EXPECT_EQ(Compose(symbol), expected);
}

TEST_F(BinaryWriter, EveryFieldComesBackBitForBit) {
    const Symbol symbol = support::EveryField();
    Symbol expected = symbol;
    for (qsymbol::ElementRecord& element : expected.elements)
        if (!element.font)
            element.font.emplace(); // every element has one after reading
    EXPECT_EQ(Back(symbol), expected);
}

TEST_F(BinaryWriter, AnglesKeepEveryBit) {
    Symbol symbol;
    symbol.elements.resize(1);
    for (const std::uint64_t bits : {0x8000000000000000ULL, 1ULL, 0x7FF0000000000000ULL,
                                     0x7FF0000000000001ULL, 0xFFF8000000001234ULL, 0x3FB999999999999AULL}) {
        symbol.elements[0].textAngle = std::bit_cast<double>(bits);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(Back(symbol).elements[0].textAngle), bits);
    }
}

TEST_F(BinaryWriter, NoElementsAreTwentyFiveBytesThatDoNotReadBack) {
    Symbol symbol;
    const std::string bytes = Compose(symbol);
    EXPECT_EQ(bytes, "\3\0SYM\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF"sv);
    EXPECT_EQ(CaughtFrom([&] { Back(symbol); }), Expected(RunTimeError::SubscriptOutOfRange));
}

TEST_F(BinaryWriter, SizesAreRoundedHalfToEven) {
    Symbol symbol;
    symbol.elements.resize(1);
    for (const auto& [size, stored] : {std::pair{8.25, 8.0}, {8.5, 8.0}, {9.5, 10.0}}) {
        symbol.elements[0].font = qsymbol::FontRecord{.size = size};
        EXPECT_EQ(Back(symbol).elements[0].font->size, stored);
    }
    symbol.elements[0].font->size = std::numeric_limits<double>::infinity();
    EXPECT_EQ(CaughtFrom([&] { Compose(symbol); }), Expected(RunTimeError::Overflow));
}

TEST_F(BinaryWriter, TextsUpTo65535Bytes) {
    Symbol symbol;
    symbol.elements.resize(1);
    symbol.elements[0].text = std::u16string(65535, u'ä');
    symbol.elements[0].font.emplace().name = std::u16string(65535, u'n');
    EXPECT_EQ(Back(symbol), symbol);
    symbol.elements[0].text += u'ä';
    EXPECT_EQ(CaughtFrom([&] { Compose(symbol); }), Expected(RunTimeError::Overflow));
    symbol.elements[0].text.clear();
    symbol.elements[0].font->name += u'n';
    EXPECT_EQ(CaughtFrom([&] { Compose(symbol); }), Expected(RunTimeError::Overflow));
}

} // namespace
