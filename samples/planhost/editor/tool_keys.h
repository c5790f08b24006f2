#pragma once

#include <windows.h>

#include <optional>

/// A key that turns what is being placed: by some degrees, or to a direction.
struct TurnKey {
    enum Kind { By, To } kind;
    int degrees;

    bool operator==(const TurnKey&) const = default;
};

/// Page Up and Down, arrows, Home and End; Ctrl+Home is the direction 0. The numeric keypad's digits are eight directions, 8
/// upwards, then counter-clockwise. The keypad has two forms: with Num Lock its own codes, without it those of the arrow
/// keys, told from them by a missing extended flag. key and info: as WM_KEYDOWN has them.
std::optional<TurnKey> TurnKeyOf(WPARAM key, LPARAM info, bool withCtrl);

/// + - * /, wherever they are on the keyboard. The symbol tool turns by minus one degree for plus; so does this.
std::optional<TurnKey> TurnKeyOf(wchar_t character);
