#include "editor/typed_place.h"

#include <gtest/gtest.h>

TEST(TypedPlace, IsInThePlanOrRelative) {
    const struct {
        const wchar_t* text;
        LONG x, y;
        bool isRelative;
    } cases[] = {{L"1200;3400", 120000, 340000, false},
                 {L"@100;-50", 10000, -5000, true},
                 {L"1,5 2.25", 150, 225, false},
                 {L"@ -3 ; 4", -300, 400, true},
                 {L"+7 ;8", 700, 800, false}};
    for (const auto& [text, x, y, isRelative] : cases) {
        const std::optional<TypedMove> place = TypedPlace(text);
        ASSERT_TRUE(place) << ::testing::PrintToString(text);
        EXPECT_EQ(place->to.x, x);
        EXPECT_EQ(place->to.y, y);
        EXPECT_EQ(place->isRelative, isRelative);
    }
    for (const wchar_t* text : {L"", L"@", L"12", L"12;", L";5", L"a;b", L"1;2;3", L"99999999999;1"})
        EXPECT_FALSE(TypedPlace(text)) << ::testing::PrintToString(text);
}
