#include "qmath/str_util.h"

#include <gtest/gtest.h>

namespace {

using qmath::FileNamePart;
using qmath::GetExtension;
using qmath::GetToken;
using qmath::NameWithoutExtension;
using qmath::TokenCount;

TEST(StrUtil, FieldsAreThePiecesBetweenSeparators) {
    EXPECT_EQ(TokenCount(u"POINT;1,00;2,00", u";"), 3);
    EXPECT_EQ(GetToken(u"POINT;1,00;2,00", u";", 1), u"POINT");
    EXPECT_EQ(GetToken(u"POINT;1,00;2,00", u";", 2), u"1,00");
    EXPECT_EQ(GetToken(u"POINT;1,00;2,00", u";", 3), u"2,00");
}

TEST(StrUtil, EmptyFieldsCount) {
    EXPECT_EQ(TokenCount(u"a;;b;", u";"), 4);
    EXPECT_EQ(GetToken(u"a;;b;", u";", 2), u"");
    EXPECT_EQ(GetToken(u"a;;b;", u";", 3), u"b");
    EXPECT_EQ(GetToken(u"a;;b;", u";", 4), u"");
    EXPECT_EQ(TokenCount(u"", u";"), 1);
    EXPECT_EQ(TokenCount(u";", u";"), 2);
}

TEST(StrUtil, AMissingFieldIsEmpty) {
    for (const std::int32_t index : {-1, 0, 3, 2147483647})
        EXPECT_EQ(GetToken(u"a;b", u";", index), u"") << index;
}

TEST(StrUtil, SeparatorsOfSeveralCharactersAndOfNone) {
    EXPECT_EQ(TokenCount(u"a--b-c--", u"--"), 3);
    EXPECT_EQ(GetToken(u"a--b-c--", u"--", 2), u"b-c");
    EXPECT_EQ(TokenCount(u"a;b", u""), 1);
    EXPECT_EQ(GetToken(u"a;b", u"", 1), u"a;b");
    EXPECT_EQ(GetToken(u"a;b", u"", 2), u"");
}

TEST(StrUtil, ASeparatorMayBeLonger) {
    EXPECT_EQ(TokenCount(u"BLT  120.5  80", u"  "), 3);
    EXPECT_EQ(GetToken(u"BLT  120.5  80", u"  ", 2), u"120.5");
    EXPECT_EQ(GetToken(u"BLT  120.5  80", u"  ", 4), u"");
}

TEST(StrUtil, FileNameOfAPath) {
    EXPECT_EQ(FileNamePart(u"C:\\plan\\wc.syb"), u"wc.syb");
    EXPECT_EQ(FileNamePart(u"plan/wc.syb"), u"wc.syb");
    EXPECT_EQ(FileNamePart(u"a\\b/c:d"), u"d");
    EXPECT_EQ(FileNamePart(u"C:wc.syb"), u"wc.syb");
    EXPECT_EQ(FileNamePart(u"wc.syb"), u"wc.syb");
    EXPECT_EQ(FileNamePart(u"plan\\"), u"");
    EXPECT_EQ(FileNamePart(u""), u"");
}

TEST(StrUtil, NameUpToTheLastDot) {
    EXPECT_EQ(NameWithoutExtension(u"wc.syb"), u"wc");
    EXPECT_EQ(NameWithoutExtension(u"wc.neu.syb"), u"wc.neu");
    EXPECT_EQ(NameWithoutExtension(u"wc"), u"wc");
    EXPECT_EQ(NameWithoutExtension(u".syb"), u"");
    EXPECT_EQ(NameWithoutExtension(u"wc."), u"wc");
}

TEST(StrUtil, ExtensionOfTheFileNameOnly) {
    EXPECT_EQ(GetExtension(u"C:\\plan\\wc.syb"), u"syb");
    EXPECT_EQ(GetExtension(u"C:\\plan.neu\\wc"), u"");
    EXPECT_EQ(GetExtension(u"plan.neu/wc"), u"");
    EXPECT_EQ(GetExtension(u"wc.neu.SYB"), u"SYB");
    EXPECT_EQ(GetExtension(u"wc."), u"");
    EXPECT_EQ(GetExtension(u""), u"");
}

} // namespace
