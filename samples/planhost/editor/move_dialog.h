#pragma once

#include <windows.h>

#include <optional>

/// Where the user wants the marked symbols, in units.
struct TypedMove {
    POINT to;
    bool isRelative; ///< to where they are
};

/// Asks for it; nothing when the user thinks better of it.
std::optional<TypedMove> AskForMove(HWND owner);
