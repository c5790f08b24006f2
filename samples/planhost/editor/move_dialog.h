#pragma once

#include <windows.h>

#include <optional>
#include <string>

/// Where the user wants the marked symbols, in units.
struct TypedMove {
    POINT to;
    bool isRelative; ///< to where they are
};

/// Asks for it; nothing when the user thinks better of it. name, at: of the symbol whose insertion point lands there.
std::optional<TypedMove> AskForMove(HWND owner, const std::wstring& name, POINT at);
