#include "editor/history.h"

#include <gtest/gtest.h>

namespace {

std::vector<PlacedSymbol> Symbols(std::initializer_list<const wchar_t*> names) {
    std::vector<PlacedSymbol> symbols;
    for (const wchar_t* name : names)
        symbols.push_back({name, {}, 0});
    return symbols;
}

} // namespace

TEST(History, ADifferenceIsWhatLiesBetweenEqualEnds) {
    const PlanChange change = Difference(Symbols({L"a", L"b", L"c"}), Symbols({L"a", L"x", L"y", L"c"}));
    EXPECT_EQ(change.first, 1u);
    EXPECT_EQ(change.before, Symbols({L"b"}));
    EXPECT_EQ(change.after, Symbols({L"x", L"y"}));
    EXPECT_EQ(change.Reversed().after, Symbols({L"b"}));
    EXPECT_TRUE(Difference(Symbols({L"a", L"a"}), Symbols({L"a", L"a"})).IsNothing());
    EXPECT_EQ(Difference(Symbols({L"a", L"a"}), Symbols({L"a"})).before.size(), 1u);
}

TEST(History, GoesBackAndForthAndKnowsEveryState) {
    History history;
    history.Begin();
    const unsigned opened = history.State();
    history.Add({0, {}, Symbols({L"a"})}, false);
    const unsigned one = history.State();
    history.Add({1, {}, Symbols({L"b"})}, false);
    history.WentBack();
    EXPECT_EQ(history.State(), one);
    ASSERT_TRUE(history.CanRedo());
    EXPECT_EQ(history.ToRedo().after, Symbols({L"b"}));
    history.WentBack();
    EXPECT_EQ(history.State(), opened);
    EXPECT_FALSE(history.CanUndo());
    history.Add({0, {}, Symbols({L"c"})}, false); // another way: what was ahead is gone
    EXPECT_FALSE(history.CanRedo());
    EXPECT_NE(history.State(), one);
}

TEST(History, WhatContinuesIsOneStep) {
    History history;
    history.Begin();
    history.Add({0, {}, Symbols({L"a"})}, false);
    history.Add({0, Symbols({L"a"}), Symbols({L"b"})}, true); // not of the same kind
    history.Add({0, Symbols({L"b"}), Symbols({L"c"})}, true);
    EXPECT_EQ(history.ToUndo().before, Symbols({L"a"}));
    EXPECT_EQ(history.ToUndo().after, Symbols({L"c"}));
    history.Add({3, Symbols({L"c"}), Symbols({L"d"})}, true); // of another symbol
    EXPECT_EQ(history.ToUndo().before, Symbols({L"c"}));
    history.WentBack();
    history.WentBack();
    history.WentBack();
    EXPECT_FALSE(history.CanUndo());
}
