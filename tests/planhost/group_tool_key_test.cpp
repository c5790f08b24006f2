#include "editor/tool_keys.h"

#include <gtest/gtest.h>

namespace {

constexpr LPARAM kKeypad = 0;
constexpr LPARAM kArrowKeys = static_cast<LPARAM>(KF_EXTENDED) << 16;

} // namespace

TEST(GroupToolKey, TheKeypadIsTheSameWithAndWithoutNumLock) {
    const WPARAM withoutNumLock[] = {VK_INSERT, VK_END,   VK_DOWN, VK_NEXT, VK_LEFT,
                                     VK_CLEAR,  VK_RIGHT, VK_HOME, VK_UP,   VK_PRIOR};
    for (WPARAM digit = 0; digit < 10; ++digit) {
        EXPECT_EQ(GroupToolKey(VK_NUMPAD0 + digit, kKeypad), VK_NUMPAD0 + static_cast<int>(digit));
        EXPECT_EQ(GroupToolKey(withoutNumLock[digit], kKeypad), VK_NUMPAD0 + static_cast<int>(digit));
    }
}

TEST(GroupToolKey, TheArrowKeysStayWhatTheyAre) {
    for (const WPARAM key :
         {VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_INSERT})
        EXPECT_EQ(GroupToolKey(key, kArrowKeys), static_cast<short>(key));
}

TEST(GroupToolKey, SignsComeFromBothPartsOfTheKeyboard) {
    EXPECT_EQ(GroupToolKey(VK_ADD, kKeypad), VK_ADD);
    EXPECT_EQ(GroupToolKey(VK_OEM_PLUS, kKeypad), VK_ADD);
    EXPECT_EQ(GroupToolKey(VK_SUBTRACT, kKeypad), VK_SUBTRACT);
    EXPECT_EQ(GroupToolKey(VK_OEM_MINUS, kKeypad), VK_SUBTRACT);
    EXPECT_EQ(GroupToolKey(VK_MULTIPLY, kKeypad), VK_MULTIPLY);
    EXPECT_EQ(GroupToolKey(VK_DIVIDE, kArrowKeys), VK_DIVIDE); // an extended key, too
}
