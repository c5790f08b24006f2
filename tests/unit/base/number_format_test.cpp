#include "base/number_format.h"

#include "base/error.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

std::string Hundredths(std::int32_t value, const char* decimal = ".") {
    std::string out;
    base::AppendHundredths(out, value, decimal);
    return out;
}

std::string Decimals(double value, int decimals, const char* decimal = ".") {
    std::string out;
    base::AppendDecimals(out, value, decimals, decimal);
    return out;
}

TEST(NumberFormat, HundredthsAreExact) {
    EXPECT_EQ(Hundredths(0), "0.00");
    EXPECT_EQ(Hundredths(5), "0.05");
    EXPECT_EQ(Hundredths(-5), "-0.05");
    EXPECT_EQ(Hundredths(30000, ","), "300,00");
    EXPECT_EQ(Hundredths(-12345), "-123.45");
    EXPECT_EQ(Hundredths(std::numeric_limits<std::int32_t>::max()), "21474836.47");
    EXPECT_EQ(Hundredths(std::numeric_limits<std::int32_t>::min()), "-21474836.48");
}

TEST(NumberFormat, DecimalsRoundHalvesAwayFromZero) {
    EXPECT_EQ(Decimals(0.125, 2), "0.13");
    EXPECT_EQ(Decimals(-0.125, 2), "-0.13");
    EXPECT_EQ(Decimals(2.5, 0), "3");
    EXPECT_EQ(Decimals(0.5, 0), "1");
    EXPECT_EQ(Decimals(0.4, 0), "0");
    EXPECT_EQ(Decimals(9.995, 2), "10.00");
    EXPECT_EQ(Decimals(99.999, 2), "100.00");
    EXPECT_EQ(Decimals(0.994999, 2), "0.99");
    EXPECT_EQ(Decimals(0.05, 1), "0.1");
    EXPECT_EQ(Decimals(0.04, 1), "0.0");
}

TEST(NumberFormat, ZeroHasNoMinusSign) {
    EXPECT_EQ(Decimals(-0.0, 2), "0.00");
    EXPECT_EQ(Decimals(-0.001, 2), "0.00");
}

TEST(NumberFormat, AtMostFifteenSignificantDigits) {
    EXPECT_EQ(Decimals(1234.56789, 14), "1234.56789000000000");
    EXPECT_EQ(Decimals(1.0 / 3.0, 14), "0.33333333333333");
    EXPECT_EQ(Decimals(2000.0 / 3.0, 14), "666.66666666666700");
    EXPECT_EQ(Decimals(0.0005, 14), "0.00050000000000");
    EXPECT_EQ(Decimals(1e20, 2, ","), "100000000000000000000,00");
}

TEST(NumberFormat, WhatIsNoNumberIsOverflow) {
    EXPECT_THROW(Decimals(std::numeric_limits<double>::infinity(), 2), base::Error);
    EXPECT_THROW(Decimals(std::numeric_limits<double>::quiet_NaN(), 2), base::Error);
}

} // namespace
