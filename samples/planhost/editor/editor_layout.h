#pragma once

#include <windows.h>

/// Where the parts of the editor's window are, in pixels of its client area.
struct EditorLayout {
    RECT properties; ///< a strip at the top
    RECT palette;    ///< at the left
    RECT plan;       ///< what is left
};

/// What the parts want, in pixels.
struct LayoutWishes {
    int propertiesHeight;
    int paletteWidth;
    int statusHeight;
};

/// The plan keeps at least half of the width.
EditorLayout LayOut(SIZE client, const LayoutWishes& wishes);
