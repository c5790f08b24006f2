#include "base/number_reader.h"

#include "base/error.h"
#include "platform/posix/fixed_regional_settings.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

const base::NumberReader kGerman(platform::GermanSettings());
const base::NumberReader kEnglish(platform::EnglishSettings());

std::int32_t ErrorNumber(const auto& call) {
    try {
        call();
    } catch (const base::Error& error) {
        return error.Number();
    }
    return 0;
}

TEST(NumberReader, PlainForms) {
    EXPECT_EQ(kEnglish.TryDecimal("1.50"), 1.5);
    EXPECT_EQ(kEnglish.TryDecimal("  -1.5e2 "), -150.0);
    EXPECT_EQ(kEnglish.TryDecimal("+.5"), 0.5);
    EXPECT_EQ(kEnglish.TryDecimal("5."), 5.0);
    EXPECT_EQ(kEnglish.TryDecimal("1,234.5"), 1234.5);
    EXPECT_EQ(kEnglish.TryDecimal("0"), 0.0);
    EXPECT_EQ(kEnglish.TryDecimal("0e99"), 0.0);
    EXPECT_EQ(kEnglish.TryDecimal("123456789012345678901234567890"), 123456789012345678901234567890.0);
    EXPECT_EQ(kEnglish.TryDecimal("0." + std::string(500, '0') + "1"), 0.0);
    EXPECT_EQ(kEnglish.TryDecimal("2.2250738585072014e-308"), 2.2250738585072014e-308);
}

TEST(NumberReader, SeparatorsAreTheUsers) {
    EXPECT_EQ(kGerman.TryDecimal("1,50"), 1.5);
    EXPECT_EQ(kGerman.TryDecimal("1.50"), 150.0);
    EXPECT_EQ(kGerman.TryDecimal("1.234,5"), 1234.5);
    EXPECT_EQ(kEnglish.TryDecimal("1,50"), 150.0);
}

TEST(NumberReader, WhatIsNoNumber) {
    for (const char* text : {"", " ", "abc", "-", ".", "1x", "1 2", "e5", "1e", "1e+", "--1", ",1", "1.2.3"})
        EXPECT_EQ(kEnglish.TryDecimal(text), std::nullopt) << text;
    EXPECT_EQ(ErrorNumber([] { kEnglish.Decimal("abc"); }), 13);
}

TEST(NumberReader, TooLargeForADouble) {
    EXPECT_EQ(kEnglish.TryDecimal("1e400"), std::nullopt);
    EXPECT_EQ(ErrorNumber([] { kEnglish.Decimal("1e400"); }), 6);
    EXPECT_EQ(ErrorNumber([] { kEnglish.Decimal("-1e99999999"); }), 6);
    EXPECT_EQ(ErrorNumber([] { kEnglish.Decimal(std::string(401, '9')); }), 6);
}

TEST(NumberReader, LengthsRoundHalfToEven) {
    EXPECT_EQ(kGerman.Hundredths("0,125"), 12);
    EXPECT_EQ(kGerman.Hundredths("0,375"), 38);
    EXPECT_EQ(kGerman.Hundredths("2,005"), 200);
    EXPECT_EQ(ErrorNumber([] { kGerman.Hundredths("21474836,48"); }), 6);
    EXPECT_EQ(kGerman.Hundredths("-21474836,48"), -2147483647 - 1);
}

TEST(NumberReader, WholeNumbersFitTheirWidth) {
    EXPECT_EQ(kEnglish.Long("2.5"), 2);
    EXPECT_EQ(kEnglish.Long("3.5"), 4);
    EXPECT_EQ(kEnglish.Integer("32767"), 32767);
    EXPECT_EQ(ErrorNumber([] { kEnglish.Integer("32768"); }), 6);
    EXPECT_EQ(ErrorNumber([] { kEnglish.Long("2147483648"); }), 6);
}

TEST(NumberReader, TheSystemDecidesWhatIsNotPlain) {
    base::RegionalSettings settings = platform::EnglishSettings();
    settings.systemParse = [](std::string_view text) -> std::optional<double> {
        return text == "(5)" ? std::optional<double>(-5.0) : std::nullopt;
    };
    const base::NumberReader reader(settings);
    EXPECT_EQ(reader.TryDecimal("(5)"), -5.0);
    EXPECT_EQ(reader.TryDecimal("[5]"), std::nullopt);
}

} // namespace
