#include "qplan/plan/placement_list.h"

#include <gtest/gtest.h>

/// Also over a gap of many, and when the slots have been renewed.
TEST(PlacementList, GoesOnBehindWhatWasRemoved) {
    qplan::PlacementList list;
    for (std::int32_t id = 1; id <= 2000; ++id)
        list.Append({.id = id, .symbol = 0, .position = {}});
    for (std::size_t slot = 500; slot < 1400; ++slot)
        ASSERT_FALSE(list.Remove(slot));
    ASSERT_NE(list.NextAfter(500), nullptr);
    EXPECT_EQ(list.NextAfter(500)->id, 1401);
    EXPECT_EQ(list.ByPos(501)->id, 1401);
    EXPECT_EQ(list.ById(1400), nullptr);

    bool renewed = false;
    for (std::int32_t id = 1401; !renewed; ++id)
        renewed = list.Remove(*list.SlotOf(id));
    EXPECT_EQ(static_cast<std::size_t>(list.Count()), list.SlotCount());
    EXPECT_EQ(list.ByPos(list.Count())->id, 2000);
    EXPECT_EQ(list.NextAfter(2000), nullptr);
}

TEST(PlacementList, ItsLastBlockMayBeFull) {
    qplan::PlacementList list;
    for (std::int32_t id = 1; id <= 1025; ++id)
        list.Append({.id = id, .symbol = 0, .position = {}});
    for (std::size_t slot = 0; slot < 512; ++slot)
        ASSERT_FALSE(list.Remove(slot));
    EXPECT_TRUE(list.Remove(512));
    EXPECT_EQ(list.SlotCount(), 512U);
    EXPECT_EQ(list.ByPos(512)->id, 1025);
    ASSERT_FALSE(list.Remove(0));
    EXPECT_EQ(list.ByPos(511)->id, 1025);
    EXPECT_EQ(list.NextAfter(0)->id, 515);
}
