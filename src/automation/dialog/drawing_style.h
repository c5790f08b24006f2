#pragma once

#include <windows.h>

namespace dialog {

/// The drawing properties of a picture box, as hosts number them; colours are packed RGB or system colours.
struct DrawingStyle {
    LONG drawMode = R2_COPYPEN;
    LONG drawWidth = 1;
    LONG drawStyle = 0;
    LONG foreColor = 0;
    LONG fillColor = 0;
    LONG fillStyle = 1;
};

} // namespace dialog
