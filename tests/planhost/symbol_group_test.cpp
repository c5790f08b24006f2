#include "editor/symbol_group.h"

#include <gtest/gtest.h>

#include <numbers>

using std::numbers::pi;

TEST(SymbolGroup, MembersStandRelativeToTheBase) {
    const std::vector<PlacedSymbol> symbols{{L"B", {1000, -500}, 90}, {L"D", {900, 100}, 180}};
    const SymbolGroup group = MakeGroup(symbols, {1000, -400});
    ASSERT_EQ(group.members.size(), 2u);
    EXPECT_EQ(group.members[0].delta.x, 0);
    EXPECT_EQ(group.members[0].delta.y, -100);
    EXPECT_DOUBLE_EQ(group.members[0].angle, pi / 2);
    EXPECT_EQ(group.members[1].delta.x, -100);
    EXPECT_EQ(group.members[1].delta.y, 500);
    EXPECT_DOUBLE_EQ(group.members[1].angle, pi);
}

TEST(SymbolGroup, OppositeEndsOfTheLargestSheetFit) {
    const std::vector<PlacedSymbol> symbols{{L"A", {-1'000'000'000, 0}, 0}, {L"B", {1'000'000'000, 0}, 0}};
    EXPECT_EQ(MakeGroup(symbols, symbols.front().at).members[1].delta.x, 2'000'000'000);
}

TEST(SymbolGroup, TurnsCounterClockwiseAboutAPoint) {
    const std::vector<PlacedSymbol> turned = TurnedAbout({{L"A", {300, 100}, 350}}, {100, 100}, 90);
    EXPECT_EQ(turned[0].at.x, 100);
    EXPECT_EQ(turned[0].at.y, -100); // upwards, for y grows downwards
    EXPECT_EQ(turned[0].angle, 80);
}

TEST(SymbolGroup, DegreesLieInOneTurnWithoutTheNoiseOfRadians) {
    EXPECT_EQ(DegreesOf(0), 0);
    EXPECT_EQ(DegreesOf(pi / 180 * 79), 79);
    EXPECT_EQ(DegreesOf(-pi / 2), 270);
    EXPECT_EQ(DegreesOf(2 * pi), 0);
    EXPECT_EQ(DegreesOf(2 * pi - 1e-12), 0);
    EXPECT_EQ(DegreesOf(7 * pi), 180);
    EXPECT_EQ(DegreesOf(pi / 180 * 200.5), 200.5);
}
