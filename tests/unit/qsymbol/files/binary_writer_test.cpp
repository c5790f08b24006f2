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

TEST_F(BinaryWriter, AnglesKeepEveryBit) {
    Symbol symbol;
    symbol.elements.resize(1);
    for (const std::uint64_t bits : {0x8000000000000000ULL, 1ULL, 0x7FF0000000000000ULL,
                                     0x7FF0000000000001ULL, 0xFFF8000000001234ULL, 0x3FB999999999999AULL}) {
        symbol.elements[0].textAngle = std::bit_cast<double>(bits);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(Back(symbol).elements[0].textAngle), bits);
    }
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
