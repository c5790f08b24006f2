#include "qsymbol/draw/screen_point_buffer.h"

#include <gtest/gtest.h>

namespace {

using qsymbol::ScreenPointBuffer;

TEST(ScreenPointBuffer, OnlyGrows) {
    ScreenPointBuffer buffer;
    EXPECT_EQ(buffer.UpperIndex(), -1);
    {
        const ScreenPointBuffer::Lease lease(buffer, 10);
        EXPECT_EQ(lease.Points().size(), 10U);
    }
    EXPECT_EQ(buffer.UpperIndex(), 9);
    const qmath::Point* place = nullptr;
    {
        const ScreenPointBuffer::Lease lease(buffer, 4);
        EXPECT_EQ(lease.Points().size(), 4U);
        place = lease.Points().data();
    }
    EXPECT_EQ(buffer.UpperIndex(), 9);
    {
        const ScreenPointBuffer::Lease lease(buffer, 10);
        EXPECT_EQ(lease.Points().data(), place);
    }
    buffer.Reset();
    EXPECT_EQ(buffer.UpperIndex(), -1);
}

TEST(ScreenPointBuffer, AnInnerDrawingLeavesTheOuterOneAlone) {
    ScreenPointBuffer buffer;
    {
        const ScreenPointBuffer::Lease outer(buffer, 2);
        outer.Points()[0] = {1, 2};
        outer.Points()[1] = {3, 4};
        {
            const ScreenPointBuffer::Lease inner(buffer, 100);
            for (qmath::Point& point : inner.Points())
                point = {9, 9};
        }
        EXPECT_EQ(outer.Points()[0], (qmath::Point{1, 2}));
        EXPECT_EQ(outer.Points()[1], (qmath::Point{3, 4}));
    }
    EXPECT_EQ(buffer.UpperIndex(), 99);
}

} // namespace
