#include "qsymbol/dialog/dialog_layout.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using qmath::Point;
using qsymbol::PreviewOffset;

TEST(PreviewOffset, CentresInTheFreeDirection) {
    EXPECT_EQ(PreviewOffset(4000, 1000, 200, 150), (Point{0, 50}));
    EXPECT_EQ(PreviewOffset(1000, 4000, 200, 160), (Point{80, 0}));
    EXPECT_EQ(PreviewOffset(3000, 3000, 100, 100), (Point{0, 0}));
}

TEST(PreviewOffset, LeavesASymbolWithoutASizeWhereItIs) {
    EXPECT_EQ(PreviewOffset(0, 1000, 200, 150), (Point{0, 0}));
    EXPECT_EQ(PreviewOffset(1000, 0, 200, 150), (Point{0, 0}));
    EXPECT_EQ(PreviewOffset(-5, -5, 200, 150), (Point{0, 0}));
    EXPECT_EQ(PreviewOffset(10, 10, 0, 0), (Point{0, 0}));
}

TEST(PreviewOffset, TakesTheWholeRange) {
    constexpr std::int32_t kMaximum = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(PreviewOffset(kMaximum, 1, 201, 101), (Point{0, 50}));
    EXPECT_EQ(PreviewOffset(1, 1, kMaximum, 1), (Point{(kMaximum - 1) / 2, 0}));
}

} // namespace
