#include "base/digits.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::int64_t Value(const std::string& text) {
    return base::DigitsValue(text.data(), text.size());
}

TEST(Digits, EveryLength) {
    EXPECT_EQ(Value("0"), 0);
    EXPECT_EQ(Value("00000000"), 0);
    EXPECT_EQ(Value("00000012"), 12);
    EXPECT_EQ(Value("99999999"), 99999999);
    for (std::int64_t value = 0; value < 100000000; value += value < 20000 ? 1 : 99991)
        ASSERT_EQ(Value(std::to_string(value)), value);
}

TEST(Digits, NoneAndTooMany) {
    EXPECT_EQ(Value(""), -1);
    EXPECT_EQ(Value("123456789"), -1);
}

TEST(Digits, AnyOtherByteAnywhere) {
    for (std::size_t size = 1; size <= 8; ++size)
        for (std::size_t at = 0; at < size; ++at)
            for (int byte = 0; byte < 256; ++byte) {
                std::string text(size, '7');
                text[at] = static_cast<char>(byte);
                ASSERT_EQ(Value(text) >= 0, byte >= '0' && byte <= '9') << size << ' ' << at << ' ' << byte;
            }
}

} // namespace
