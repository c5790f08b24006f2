#include "base/checked.h"
#include "support/error_number_of.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <random>

namespace {

using base::RoundToLong;
using support::ErrorNumberOf;

TEST(RoundToLong, HalvesGoToTheEvenNumber) {
    EXPECT_EQ(RoundToLong(76.5), 76);
    EXPECT_EQ(RoundToLong(77.5), 78);
    EXPECT_EQ(RoundToLong(-0.5), 0);
    EXPECT_EQ(RoundToLong(-1.5), -2);
    EXPECT_EQ(RoundToLong(0.49999999999999994), 0);
    EXPECT_EQ(RoundToLong(std::nextafter(0.5, 1)), 1);
    EXPECT_EQ(RoundToLong(-2.4999999999999996), -2);
}

TEST(RoundToLong, EndsOfTheRange) {
    EXPECT_EQ(RoundToLong(2147483647.0), 2147483647);
    EXPECT_EQ(RoundToLong(2147483647.4999), 2147483647);
    EXPECT_EQ(RoundToLong(-2147483648.0), -2147483647 - 1);
    EXPECT_EQ(RoundToLong(-2147483648.5), -2147483647 - 1);
    EXPECT_EQ(ErrorNumberOf([] { RoundToLong(2147483647.5); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { RoundToLong(-2147483648.5001); }), 6);
}

TEST(RoundToLong, WhatIsFarOutsideIsError6) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    for (const double value : {kInfinity,
                               -kInfinity,
                               kNaN,
                               -kNaN,
                               std::numeric_limits<double>::max(),
                               -std::numeric_limits<double>::max(),
                               4294967296.0,
                               -4294967296.0,
                               0x1p51,
                               -0x1p51,
                               0x1p52,
                               -0x1p52,
                               -0x1.8p52,
                               -0x1.8p52 - 2,
                               0x1.8p52,
                               0x1p53,
                               -0x1p53,
                               0x1p63,
                               -0x1p63,
                               0x1p64})
        EXPECT_EQ(ErrorNumberOf([&] { RoundToLong(value); }), 6) << value;
}

TEST(RoundToLong, AgreesWithTheSystemsRounding) {
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    std::mt19937_64 random(3);
    std::uniform_int_distribution<std::uint64_t> bits;
    for (int i = 0; i < 200000; ++i) {
        const double value = std::bit_cast<double>(bits(random));
        const double expected = std::nearbyint(value);
        if (expected >= -2147483648.0 && expected <= 2147483647.0)
            EXPECT_EQ(RoundToLong(value), static_cast<std::int32_t>(expected)) << value;
        else
            EXPECT_EQ(ErrorNumberOf([&] { RoundToLong(value); }), 6) << value;
    }
    std::uniform_int_distribution<std::int64_t> quarters(-4 * 2147483650LL, 4 * 2147483650LL);
    for (int i = 0; i < 200000; ++i) {
        const double value = static_cast<double>(quarters(random)) / 4;
        const double expected = std::nearbyint(value);
        if (expected >= -2147483648.0 && expected <= 2147483647.0)
            EXPECT_EQ(RoundToLong(value), static_cast<std::int32_t>(expected)) << value;
        else
            EXPECT_EQ(ErrorNumberOf([&] { RoundToLong(value); }), 6) << value;
    }
}

} // namespace
