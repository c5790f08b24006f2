#include "editor/tool_keys.h"

#include <gtest/gtest.h>

namespace {

constexpr LPARAM kKeypad = 0;
constexpr LPARAM kArrowKeys = static_cast<LPARAM>(KF_EXTENDED) << 16;

TurnKey By(int degrees) {
    return {TurnKey::By, degrees};
}
TurnKey To(int degrees) {
    return {TurnKey::To, degrees};
}

} // namespace

TEST(TurnKey, TheKeypadIsTheSameWithAndWithoutNumLock) {
    const struct {
        WPARAM withNumLock, without;
        int degrees;
    } digits[] = {{VK_NUMPAD8, VK_UP, 0},      {VK_NUMPAD7, VK_HOME, 45},  {VK_NUMPAD4, VK_LEFT, 90},
                  {VK_NUMPAD1, VK_END, 135},   {VK_NUMPAD2, VK_DOWN, 180}, {VK_NUMPAD3, VK_NEXT, 225},
                  {VK_NUMPAD6, VK_RIGHT, 270}, {VK_NUMPAD9, VK_PRIOR, 315}};
    for (const auto& [withNumLock, without, degrees] : digits) {
        EXPECT_EQ(TurnKeyOf(withNumLock, kKeypad, false), To(degrees));
        EXPECT_EQ(TurnKeyOf(without, kKeypad, false), To(degrees));
    }
    EXPECT_FALSE(TurnKeyOf(VK_NUMPAD5, kKeypad, false));
    EXPECT_FALSE(TurnKeyOf(VK_NUMPAD0, kKeypad, false));
}

TEST(TurnKey, ArrowsPagesAndEndsTurnByDegrees) {
    const std::pair<WPARAM, int> keys[] = {{VK_PRIOR, 10}, {VK_NEXT, -10}, {VK_UP, 1},    {VK_LEFT, 1},
                                           {VK_DOWN, -1},  {VK_RIGHT, -1}, {VK_HOME, 90}, {VK_END, -90}};
    for (const auto& [key, degrees] : keys)
        EXPECT_EQ(TurnKeyOf(key, kArrowKeys, false), By(degrees));
    EXPECT_EQ(TurnKeyOf(VK_HOME, kArrowKeys, true), To(0));
    EXPECT_EQ(TurnKeyOf(VK_PRIOR, kArrowKeys, true), By(10));
    EXPECT_FALSE(TurnKeyOf(WPARAM{'A'}, kKeypad, false));
}

TEST(TurnKey, SignsTurnAsTheSymbolToolHasThem) {
    EXPECT_EQ(TurnKeyOf(L'+'), By(-1));
    EXPECT_EQ(TurnKeyOf(L'-'), By(1));
    EXPECT_EQ(TurnKeyOf(L'*'), By(-10));
    EXPECT_EQ(TurnKeyOf(L'/'), By(10));
    EXPECT_FALSE(TurnKeyOf(L'7'));
}
