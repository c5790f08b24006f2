#include "millimetres.h"

#include <gtest/gtest.h>

TEST(Millimetres, ATextHasTheDecimalsThatItNeeds) {
    EXPECT_EQ(MillimetresText(125'000, L'.'), L"1250");
    EXPECT_EQ(MillimetresText(125'050, L'.'), L"1250.5");
    EXPECT_EQ(MillimetresText(-125'005, L','), L"-1250,05");
    EXPECT_EQ(MillimetresText(-7, L'.'), L"-0.07");
    EXPECT_EQ(MillimetresText(0, L'.'), L"0");
}

TEST(Millimetres, EveryTextReadsBack) {
    for (const long units : {0L, 1L, 10L, 99L, 100L, -101L, 123'456L, -1'000'000'000L, 1'000'000'000L})
        EXPECT_EQ(UnitsFromText(MillimetresText(units, L','), L','), units);
}

TEST(Millimetres, SignsBlanksAndMissingDecimalsAreRead) {
    EXPECT_EQ(UnitsFromText(L" +12,5\t", L','), 1250);
    EXPECT_EQ(UnitsFromText(L"-0,5", L','), -50);
    EXPECT_EQ(UnitsFromText(L"007", L'.'), 700);
}

TEST(Millimetres, WhatIsNoLengthIsNotRead) {
    for (const wchar_t* text : {L"", L" ", L"-", L",5", L"5,", L"1,234", L"1.5", L"12mm", L"--3", L"1 2",
                                L"0x10", L"10000000,01", L"123456789", L"99999999999999999999"})
        EXPECT_EQ(UnitsFromText(text, L','), std::nullopt) << testing::PrintToString(text);
}
