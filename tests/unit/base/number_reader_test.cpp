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

TEST(NumberReader, LengthsThatAreNoNumberMayCountAsZero) {
    EXPECT_EQ(kGerman.HundredthsOrZero("2,005"), 200);
    EXPECT_EQ(kGerman.HundredthsOrZero("-1,5"), -150);
    for (const char* text : {"", " ", "abc", "-", "1e400"})
        EXPECT_EQ(kGerman.HundredthsOrZero(text), 0) << text;
    EXPECT_EQ(ErrorNumber([] { kGerman.HundredthsOrZero("21474836,48"); }), 6);
    EXPECT_EQ(ErrorNumber([] { kGerman.HundredthsOrZero("1e300"); }), 6);
}

/// A blank in front keeps a number off the fast path.
TEST(NumberReader, FastPathAndGeneralPathAgree) {
    const auto outcome = [](auto read, const std::string& text) {
        double value = 0;
        const std::int32_t error = ErrorNumber([&] { value = static_cast<double>(read(text)); });
        return error != 0 ? "error " + std::to_string(error) : std::to_string(value);
    };
    const auto decimal = [](const std::string& text) { return kGerman.Decimal(text); };
    const auto length = [](const std::string& text) { return kGerman.Hundredths(text); };
    const auto whole = [](const std::string& text) { return kGerman.Long(text); };
    const auto agree = [&](const std::string& text) {
        EXPECT_EQ(outcome(decimal, text), outcome(decimal, " " + text)) << text;
        EXPECT_EQ(outcome(length, text), outcome(length, " " + text)) << text;
        EXPECT_EQ(outcome(whole, text), outcome(whole, " " + text)) << text;
    };
    for (const char* text : {"0",
                             "-0",
                             "5,",
                             ",5",
                             "-,5",
                             ",",
                             "-",
                             "1,2,3",
                             "21474836,47",
                             "21474836,48",
                             "-21474836,48",
                             "-21474836,49",
                             "2147483647",
                             "2147483648",
                             "-2147483648",
                             "-2147483649",
                             "999999999999999",
                             "99999999999999,9",
                             "0,00000000000001",
                             "0000000000001,5",
                             "2147483647,5",
                             "0,005",
                             "0,015",
                             "1,005"})
        agree(text);
    std::uint32_t seed = 12345;
    for (int i = 0; i < 20000; ++i) {
        seed = seed * 1664525U + 1013904223U;
        std::string text = std::to_string(static_cast<std::int32_t>(seed) >> (seed % 23));
        const std::size_t digits = text.size() - (text[0] == '-' ? 1 : 0);
        text.insert(text.size() - (seed >> 8) % (digits + 1), seed % 3 == 0 ? "" : ",");
        agree(text);
    }
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
