#include "qsymbol/dialog/dialog_texts.h"
#include "support/error_number_of.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using qsymbol::ParseSelectionRequest;
using qsymbol::SizeText;

TEST(SelectionRequest, HasTwoFields) {
    const auto request = ParseSelectionRequest(u"Tür links+C:\\Bilder");
    EXPECT_EQ(request.name, u"Tür links");
    EXPECT_EQ(request.folder, u"C:\\Bilder");
}

TEST(SelectionRequest, AMissingFieldIsEmpty) {
    EXPECT_EQ(ParseSelectionRequest(u"Tür").name, u"Tür");
    EXPECT_EQ(ParseSelectionRequest(u"Tür").folder, u"");
    EXPECT_EQ(ParseSelectionRequest(u"+C:\\").name, u"");
    EXPECT_EQ(ParseSelectionRequest(u"").folder, u"");
}

TEST(SelectionRequest, WhatFollowsASecondSeparatorIsNotMeant) {
    EXPECT_EQ(ParseSelectionRequest(u"A+B+C").folder, u"B");
}

TEST(PicturePath, JoinsWithABackslash) {
    EXPECT_EQ(qsymbol::PicturePath(u"C:\\Bilder", u"Tür"), u"C:\\Bilder\\Tür.JPG");
    EXPECT_EQ(qsymbol::PicturePath(u"", u"Öl.tank"), u"\\Öl.tank.JPG");
}

TEST(ProgressText, CountsFromOne) {
    EXPECT_EQ(qsymbol::ProgressText(12, 95), u"12 von 95");
}

TEST(SavedText, NamesNumberAndFolder) {
    EXPECT_EQ(qsymbol::SavedText(95, u"C:\\Bilder"), u"95 Bilder in C:\\Bilder gespeichert");
    EXPECT_EQ(qsymbol::SavedText(1, u""), u"1 Bild in \\ gespeichert");
    EXPECT_EQ(qsymbol::SavedText(0, u"C:"), u"Kein Bild gespeichert");
}

TEST(SizeText, HasTwoDecimals) {
    EXPECT_EQ(SizeText(220000, 100, u","), u"2200,00");
    EXPECT_EQ(SizeText(5, 100, u"."), u"0.05");
    EXPECT_EQ(SizeText(1, 3, u"·"), u"0·33");
}

TEST(SizeText, HalvesGoAwayFromZero) {
    EXPECT_EQ(SizeText(1125, 1000, u"."), u"1.13");
    EXPECT_EQ(SizeText(-1125, 1000, u"."), u"-1.13");
    EXPECT_EQ(SizeText(-4, 1000, u"."), u"0.00");
}

TEST(SizeText, NeedsAFiniteNumber) {
    for (const double factor : {0.0, std::numeric_limits<double>::quiet_NaN(), 1e-308})
        EXPECT_EQ(support::ErrorNumberOf([&] { SizeText(2147483647, factor, u"."); }), 6) << factor;
}

} // namespace
