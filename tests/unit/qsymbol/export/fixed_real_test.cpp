#include "qsymbol/export/fixed_real.h"

#include "base/number_format.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace {

std::string Fixed(std::int64_t value) {
    char text[qsymbol::kLongestFixedReal];
    return std::string(text, qsymbol::PutFixedReal(text, value));
}

std::string General(double value) {
    std::string text;
    base::AppendDecimals(text, value, 14, ".");
    return text;
}

TEST(FixedReal, GivenNumbers) {
    EXPECT_EQ(Fixed(0), "0.00000000000000");
    EXPECT_EQ(Fixed(50), "0.00050000000000");
    EXPECT_EQ(Fixed(-50), "-0.00050000000000");
    EXPECT_EQ(Fixed(123456), "1.23456000000000");
    EXPECT_EQ(Fixed(-100000), "-1.00000000000000");
    EXPECT_EQ(Fixed(2147483647), "21474.83647000000000");
    EXPECT_EQ(Fixed(-999999999999999), "-9999999999.99999000000000");
}

TEST(FixedReal, LengthsEqualTheGeneralFormat) {
    std::mt19937_64 random(20240501);
    constexpr std::int64_t kFar = 4294967296; // the difference of two 32-bit numbers
    std::uniform_int_distribution<std::int64_t> far(-kFar, kFar);
    std::uniform_int_distribution<std::int64_t> near(-300000, 300000);
    for (int i = 0; i < 20000; ++i) {
        for (const std::int64_t value : {far(random), near(random)})
            ASSERT_EQ(Fixed(value), General(static_cast<double>(value) / 100000)) << value;
    }
    for (const std::int64_t value : {kFar, -kFar, kFar - 1, std::int64_t{99999}, std::int64_t{100001}})
        EXPECT_EQ(Fixed(value), General(static_cast<double>(value) / 100000)) << value;
}

TEST(FixedReal, TenthsEqualTheGeneralFormat) {
    std::mt19937 random(7);
    std::uniform_int_distribution<std::int32_t> any(std::numeric_limits<std::int32_t>::min(),
                                                    std::numeric_limits<std::int32_t>::max());
    for (std::int32_t tenths = -7300; tenths <= 7300; ++tenths)
        ASSERT_EQ(Fixed(tenths * std::int64_t{10000}), General(tenths / 10.0)) << tenths;
    for (int i = 0; i < 20000; ++i) {
        const std::int32_t tenths = any(random);
        ASSERT_EQ(Fixed(tenths * std::int64_t{10000}), General(tenths / 10.0)) << tenths;
    }
}

} // namespace
