#include "editor/alignment.h"

#include <gtest/gtest.h>

TEST(Alignment, MovesToTheOutermostEdgeOrTheMiddle) {
    const std::vector<RECT> areas{{0, 0, 100, 50}, {300, 20, 340, 80}};
    const struct {
        Alignment alignment;
        POINT first, second;
    } cases[] = {{Alignment::Left, {0, 0}, {-300, 0}},
                 {Alignment::Right, {240, 0}, {0, 0}},
                 {Alignment::Top, {0, 0}, {0, -20}},
                 {Alignment::Bottom, {0, 30}, {0, 0}},
                 {Alignment::MiddleAcross, {120, 0}, {-150, 0}},
                 {Alignment::MiddleDown, {0, 15}, {0, -10}}};
    for (const auto& [alignment, first, second] : cases) {
        const std::vector<POINT> moves = AlignedBy(areas, alignment);
        EXPECT_EQ(moves[0].x, first.x);
        EXPECT_EQ(moves[0].y, first.y);
        EXPECT_EQ(moves[1].x, second.x);
        EXPECT_EQ(moves[1].y, second.y);
    }
    EXPECT_TRUE(AlignedBy({}, Alignment::Left).empty());
}

TEST(Alignment, SpreadsWithEqualGapsWhateverTheOrder) {
    const std::vector<RECT> areas{{500, 0, 600, 1}, {0, 0, 100, 1}, {110, 0, 310, 1}}; // gaps of 10 and 190
    const std::vector<POINT> moves = AlignedBy(areas, Alignment::SpreadAcross);
    EXPECT_EQ(moves[0].x, 0);
    EXPECT_EQ(moves[1].x, 0);
    EXPECT_EQ(moves[2].x, 90);
    EXPECT_EQ(AlignedBy({{0, 5, 1, 6}}, Alignment::SpreadDown)[0].y, 0);
}
