#include "qsymbol/export/colour_table.h"

#include "colours/expected_colour.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace {

using colours::ExpectedColour;
using colours::Packed;
using qsymbol::ColourOfNumber;
using qsymbol::ColourUse;
using qsymbol::NumberOfColour;

constexpr ColourUse kBothUses[] = {ColourUse::Plan, ColourUse::SymbolEditor};

TEST(ColourTable, EveryEntryOfBothUses) {
    for (const ColourUse use : kBothUses)
        for (int number = 0; number <= 255; ++number)
            EXPECT_EQ(ColourOfNumber(number, use), ExpectedColour(number, use == ColourUse::SymbolEditor))
                << number << " use " << static_cast<int>(use);
}

TEST(ColourTable, TheRuleOfTheTestHoldsForGivenExamples) {
    EXPECT_EQ(ExpectedColour(10, false), Packed(255, 0, 0));
    EXPECT_EQ(ExpectedColour(11, false), Packed(255, 128, 128));
    EXPECT_EQ(ExpectedColour(12, false), Packed(166, 0, 0));
    EXPECT_EQ(ExpectedColour(13, false), Packed(166, 83, 83));
    EXPECT_EQ(ExpectedColour(16, false), Packed(76, 0, 0));
    EXPECT_EQ(ExpectedColour(20, false), Packed(255, 64, 0));
    EXPECT_EQ(ExpectedColour(21, false), Packed(255, 159, 128));
    EXPECT_EQ(ExpectedColour(24, false), Packed(128, 32, 0));
    EXPECT_EQ(ExpectedColour(25, false), Packed(128, 80, 64));
    EXPECT_EQ(ExpectedColour(91, false), Packed(128, 255, 128));
    EXPECT_EQ(ExpectedColour(230, false), Packed(255, 0, 128));
}

TEST(ColourTable, OtherNumbersAreBlack) {
    for (const ColourUse use : kBothUses)
        for (const std::int32_t number : {0, -1, 256, 257, 32767, -32768, std::numeric_limits<int>::max(),
                                          std::numeric_limits<int>::min()})
            EXPECT_EQ(ColourOfNumber(number, use), 0) << number;
}

TEST(ColourTable, ForegroundTurnsWithTheSurface) {
    for (const std::int32_t number : {7, 8, 9, 255}) {
        EXPECT_EQ(ColourOfNumber(number, ColourUse::Plan), 0);
        EXPECT_EQ(ColourOfNumber(number, ColourUse::SymbolEditor), 0xFFFFFF);
    }
    EXPECT_EQ(ColourOfNumber(250, ColourUse::SymbolEditor), 0);
    EXPECT_EQ(ColourOfNumber(250, ColourUse::Plan), 0x585858);
}

TEST(NumberOfColour, IsTheFirstNumberThatASearchFinds) {
    for (int number = 0; number <= 255; ++number) {
        for (const std::int32_t offset : {0, 1, -1}) {
            const std::int32_t colour = ExpectedColour(number, false) + offset;
            int first = 1;
            while (first <= 255 && ExpectedColour(first, false) != colour)
                ++first;
            EXPECT_EQ(NumberOfColour(colour), first <= 255 ? first : 7) << number << " offset " << offset;
        }
    }
}

TEST(NumberOfColour, KnownColours) {
    EXPECT_EQ(NumberOfColour(Packed(255, 0, 0)), 1);
    EXPECT_EQ(NumberOfColour(Packed(0, 255, 0)), 3);
    EXPECT_EQ(NumberOfColour(Packed(0, 128, 0)), 14);
    EXPECT_EQ(NumberOfColour(0), 7);
}

TEST(NumberOfColour, AnythingElseIsTheForeground) {
    EXPECT_EQ(NumberOfColour(Packed(1, 2, 3)), 7);
    EXPECT_EQ(NumberOfColour(0xFFFFFF), 7);
    EXPECT_EQ(NumberOfColour(-1), 7);
    EXPECT_EQ(NumberOfColour(std::numeric_limits<std::int32_t>::min()), 7);
    EXPECT_EQ(NumberOfColour(std::numeric_limits<std::int32_t>::max()), 7);
}

} // namespace
