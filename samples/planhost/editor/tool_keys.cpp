#include "tool_keys.h"

#include <algorithm>
#include <iterator>

namespace {

struct KeyTurn {
    WPARAM key;
    TurnKey turn;
};

constexpr KeyTurn kKeys[] = {{VK_PRIOR, {TurnKey::By, 10}}, {VK_NEXT, {TurnKey::By, -10}},
                             {VK_UP, {TurnKey::By, 1}},     {VK_DOWN, {TurnKey::By, -1}},
                             {VK_LEFT, {TurnKey::By, 1}},   {VK_RIGHT, {TurnKey::By, -1}},
                             {VK_HOME, {TurnKey::By, 90}},  {VK_END, {TurnKey::By, -90}}};

struct KeypadDigit {
    WPARAM withNumLock, without;
    int degrees;
};

constexpr KeypadDigit kDigits[] = {{VK_NUMPAD8, VK_UP, 0},      {VK_NUMPAD7, VK_HOME, 45},
                                   {VK_NUMPAD4, VK_LEFT, 90},   {VK_NUMPAD1, VK_END, 135},
                                   {VK_NUMPAD2, VK_DOWN, 180},  {VK_NUMPAD3, VK_NEXT, 225},
                                   {VK_NUMPAD6, VK_RIGHT, 270}, {VK_NUMPAD9, VK_PRIOR, 315}};

} // namespace

std::optional<TurnKey> TurnKeyOf(WPARAM key, LPARAM info, bool withCtrl) {
    const bool isExtended = (HIWORD(info) & KF_EXTENDED) != 0;
    for (const KeypadDigit& digit : kDigits) {
        if (key == digit.withNumLock || (key == digit.without && !isExtended))
            return TurnKey{TurnKey::To, digit.degrees};
    }
    if (key == VK_HOME && withCtrl)
        return TurnKey{TurnKey::To, 0};
    const auto* found = std::ranges::find(kKeys, key, &KeyTurn::key);
    return found != std::end(kKeys) ? std::optional(found->turn) : std::nullopt;
}

std::optional<TurnKey> TurnKeyOf(wchar_t character) {
    switch (character) {
    case L'+': return TurnKey{TurnKey::By, -1};
    case L'-': return TurnKey{TurnKey::By, 1};
    case L'*': return TurnKey{TurnKey::By, -10};
    case L'/': return TurnKey{TurnKey::By, 10};
    default: return std::nullopt;
    }
}
