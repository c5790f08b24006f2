#pragma once

#include <windows.h>

#include <optional>

/// Where the mouse points to.
struct Pointer {
    POINT pixel;
    /// The point that has been caught, in units; the pixel is moved with it then.
    std::optional<POINT> caught;
    const wchar_t* kind = L""; ///< of the caught point, for the user
};
