#include "qsymbol/export/tag_sink.h"

#include "support/caught.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using qsymbol::TagSink;

TEST(TagSink, IsEmptyAtFirst) {
    EXPECT_EQ(TagSink().Bytes(), "");
}

TEST(TagSink, CodeAndValueOnLinesOfTheirOwn) {
    TagSink sink;
    sink.Text("  0", "VERTEX");
    sink.Text("66", "     1");
    sink.Text("1", "");
    sink.Whole("62", 7);
    sink.Whole("62", -2147483647 - 1);
    sink.Fixed(" 10", 50);
    sink.Real("50", 90);
    EXPECT_EQ(sink.Bytes(), "  0\r\nVERTEX\r\n66\r\n     1\r\n1\r\n\r\n62\r\n7\r\n62\r\n-2147483648\r\n"
                            " 10\r\n0.00050000000000\r\n50\r\n90.00000000000000\r\n");
}

TEST(TagSink, RealsHaveFifteenDigitsAndAPoint) {
    TagSink sink;
    sink.Real("40", 10.0 / 30);
    sink.Real("40", 1234.56789);
    sink.Real("40", 359.99999999999994);
    sink.Real("40", -0.0);
    EXPECT_EQ(sink.Bytes(), "40\r\n0.33333333333333\r\n40\r\n1234.56789000000000\r\n"
                            "40\r\n360.00000000000000\r\n40\r\n0.00000000000000\r\n");
}

TEST(TagSink, WhatIsNotFiniteIsAnOverflow) {
    TagSink sink;
    EXPECT_EQ(support::CaughtFrom([&] { sink.Real("40", std::numeric_limits<double>::infinity()); }),
              support::Expected(base::RunTimeError::Overflow));
    EXPECT_EQ(support::CaughtFrom([&] { sink.Real("40", std::numeric_limits<double>::quiet_NaN()); }),
              support::Expected(base::RunTimeError::Overflow));
    EXPECT_EQ(sink.Bytes(), "");
}

TEST(TagSink, GrowsWithAnyMixOfLengths) {
    TagSink sink;
    std::string expected;
    for (std::size_t i = 0; i < 3000; ++i) {
        const std::string value(i * 37 % 1500, static_cast<char>('a' + i % 26));
        sink.Text("1", value);
        expected += "1\r\n" + value + "\r\n";
    }
    EXPECT_EQ(sink.Bytes(), expected);
}

} // namespace
