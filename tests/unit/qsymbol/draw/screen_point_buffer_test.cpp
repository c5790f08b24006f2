#include "qsymbol/draw/screen_point_buffer.h"

#include <gtest/gtest.h>

namespace {

TEST(ScreenPointBuffer, HoldsFewPointsAndMany) {
    for (const std::size_t count : {0U, 1U, 32U, 33U, 10000U}) {
        const qsymbol::ScreenPointBuffer buffer(count);
        ASSERT_EQ(buffer.Points().size(), count);
        for (qmath::Point& point : buffer.Points())
            point = {7, 8}; // under sanitizers: all of it is there
    }
}

TEST(ScreenPointBuffer, AnInnerDrawingLeavesTheOuterOneAlone) {
    const qsymbol::ScreenPointBuffer outer(2);
    outer.Points()[1] = {3, 4};
    const qsymbol::ScreenPointBuffer inner(2);
    inner.Points()[1] = {9, 9};
    EXPECT_EQ(outer.Points()[1], (qmath::Point{3, 4}));
}

} // namespace
