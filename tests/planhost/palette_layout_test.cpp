#include "editor/palette_layout.h"

#include <gmock/gmock.h>

namespace {

using testing::Pair;

// Two columns: five tiles in three rows, one in one, two in one.
const PaletteLayout kLayout({5, 1, 2},
                            {.width = 230, .tileWidth = 100, .tileHeight = 90, .heading = 30, .gap = 10});

TEST(PaletteLayout, PutsTilesBelowTheirHeadings) {
    const auto expect = [](PalettePlace place, int left, int top, int right, int bottom) {
        EXPECT_THAT((std::vector{place.left, place.top, place.right, place.bottom}),
                    testing::ElementsAre(left, top, right, bottom));
    };
    expect(kLayout.Heading(0), 0, 0, 230, 30);
    expect(kLayout.Tile(0), 10, 30, 110, 120);
    expect(kLayout.Tile(1), 120, 30, 220, 120);
    expect(kLayout.Tile(4), 10, 230, 110, 320);
    expect(kLayout.Heading(1), 0, 330, 230, 360);
    expect(kLayout.Tile(5), 10, 360, 110, 450);
    EXPECT_EQ(kLayout.Height(), 330 + 130 + 130 + 10);
    EXPECT_EQ(kLayout.SectionOf(5), 1U);
    EXPECT_EQ(PaletteLayout({3}, {.width = 40, .tileWidth = 100, .tileHeight = 90, .heading = 0, .gap = 10})
                  .Height(),
              310)
        << "one column at least";
}

TEST(PaletteLayout, FindsTiles) {
    EXPECT_EQ(kLayout.At(15, 35), 0U);
    EXPECT_EQ(kLayout.At(219, 119), 1U);
    for (const auto& [x, y] :
         {std::pair(5, 35), {115, 35}, {15, 10}, {15, 125}, {150, 250}, {15, 10000}, {15, -5}})
        EXPECT_EQ(kLayout.At(x, y), std::nullopt) << x << " " << y;
    EXPECT_THAT(kLayout.Between(0, 31), Pair(0, 2));
    EXPECT_THAT(kLayout.Between(0, 30), Pair(0, 0));
    EXPECT_THAT(kLayout.Between(140, 361), Pair(2, 6));
    EXPECT_THAT(kLayout.Between(-100, 10000), Pair(0, 8));
    EXPECT_THAT(PaletteLayout({}, {}).Between(0, 100), Pair(0, 0));
}

TEST(PaletteLayout, MovesByRowsThroughTheSections) {
    const struct {
        std::size_t from;
        int rows;
        std::size_t to;
    } cases[] = {{0, 1, 2},  {3, 1, 4},  {4, 1, 5},  {5, 1, 6},   {7, 1, 7},
                 {1, -1, 1}, {7, -1, 5}, {5, -1, 4}, {0, 100, 6}, {7, -100, 0}};
    for (const auto& [from, rows, to] : cases)
        EXPECT_EQ(kLayout.RowsBelow(from, rows), to) << from << " " << rows;
}

} // namespace
