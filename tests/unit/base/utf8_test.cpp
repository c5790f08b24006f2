#include "base/utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

TEST(Utf8, CharactersOfEveryLengthComeBack) {
    const std::vector<std::pair<std::u16string, std::string>> pairs = {
        {u"", ""},
        {u"Tür", "T\xC3\xBCr"},
        {u"\u20AC", "\xE2\x82\xAC"},
        {u"a\U0001F6AA", "a\xF0\x9F\x9A\xAA"},
        {u"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
    };
    for (const auto& [text, bytes] : pairs) {
        EXPECT_EQ(base::ToUtf8(text), bytes);
        EXPECT_EQ(base::FromUtf8(bytes), text) << bytes;
    }
}

/// Half a pair is replaced; a byte that begins nothing whole as well, and reading goes on behind it.
TEST(Utf8, WhatIsBrokenIsReplaced) {
    for (const std::u16string half : {u"\xD83D", u"\xDEAA", u"\xD83Dx"})
        EXPECT_TRUE(base::ToUtf8(half).starts_with("\xEF\xBF\xBD")) << half.size();
    const std::vector<std::pair<std::string, std::u16string>> broken = {
        {"\x80z", u"\uFFFDz"},                             // goes on with nothing
        {"\xC1\xBF", u"\uFFFD\uFFFD"},                     // a lead that only overlong forms have
        {"\xC3", u"\uFFFD"},                               // cut off
        {"\xC3z", u"\uFFFDz"},                             // not gone on with
        {"\xE2\x82z", u"\uFFFD\uFFFDz"},                   // the same, later
        {"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},           // overlong
        {"\xF0\x80\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // overlong
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},           // half a pair
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond the last character
        {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // the same by its lead
    };
    for (const auto& [bytes, text] : broken)
        EXPECT_EQ(base::FromUtf8(bytes), text) << testing::PrintToString(bytes);
}
