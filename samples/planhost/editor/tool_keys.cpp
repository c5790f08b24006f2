#include "tool_keys.h"

#include <algorithm>
#include <iterator>

namespace {

struct KeyPair {
    WPARAM key;
    short forTool;
};

constexpr KeyPair kWithoutNumLock[] = {{VK_END, VK_NUMPAD1},   {VK_DOWN, VK_NUMPAD2},  {VK_NEXT, VK_NUMPAD3},
                                       {VK_LEFT, VK_NUMPAD4},  {VK_CLEAR, VK_NUMPAD5}, {VK_RIGHT, VK_NUMPAD6},
                                       {VK_HOME, VK_NUMPAD7},  {VK_UP, VK_NUMPAD8},    {VK_PRIOR, VK_NUMPAD9},
                                       {VK_INSERT, VK_NUMPAD0}};

} // namespace

short GroupToolKey(WPARAM key, LPARAM info) {
    const bool isExtended = (HIWORD(info) & KF_EXTENDED) != 0;
    const auto* found = std::ranges::find(kWithoutNumLock, key, &KeyPair::key);
    if (!isExtended && found != std::end(kWithoutNumLock))
        return found->forTool;
    switch (key) {
    case VK_OEM_PLUS: return VK_ADD;
    case VK_OEM_MINUS: return VK_SUBTRACT;
    default: return static_cast<short>(key);
    }
}

short ShiftState() {
    const auto bit = [](int key, int value) { return GetKeyState(key) < 0 ? value : 0; };
    return static_cast<short>(bit(VK_SHIFT, 1) | bit(VK_CONTROL, 2) | bit(VK_MENU, 4));
}
