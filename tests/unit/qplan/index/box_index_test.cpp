#include "qplan/index/box_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

/// Asked after every addition, so that trees of all sizes are made and joined.
TEST(BoxIndex, FindsEachEntryAlsoWhenTreesAreJoined) {
    qplan::BoxIndex index;
    for (std::int32_t slot = 0; slot < 500; ++slot) {
        index.Add({10 * slot, 0, 10 * slot + 5, 5}, static_cast<std::uint32_t>(slot));
        std::multiset<std::uint32_t> found;
        index.Propose(qplan::WorldBox::Everything(),
                      [&](std::uint32_t at, const auto&) { found.insert(at); });
        ASSERT_EQ(found.size(), static_cast<std::size_t>(slot) + 1);
        ASSERT_EQ(std::set<std::uint32_t>(found.begin(), found.end()).size(), found.size()) << "each once";
    }
    std::vector<std::uint32_t> within;
    index.Propose({100, 1, 112, 2}, [&](std::uint32_t slot, const qplan::WorldBox& box) {
        if (box.Meets({100, 1, 112, 2}))
            within.push_back(slot);
    });
    std::sort(within.begin(), within.end());
    EXPECT_EQ(within, (std::vector<std::uint32_t>{10, 11}));
}
