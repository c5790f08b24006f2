#pragma once

#include <windows.h>

#include <optional>

/// Where the mouse points to.
struct Pointer {
    POINT pixel;
    /// The point of a placed symbol that it has caught, in units; the pixel is that point's then.
    std::optional<POINT> caught;
};
