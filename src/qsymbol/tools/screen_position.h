#pragma once

namespace qsymbol {

/// Where the mouse is, in pixels of the surface, as a host's mouse events tell it.
struct ScreenPosition {
    float x;
    float y;
};

} // namespace qsymbol
