#pragma once

#include <windows.h>

#include <olectl.h>

/// The colour behind an OLE colour, which may name one of the system; another one for a number that is none.
inline COLORREF ColourOr(LONG colour, COLORREF otherwise) {
    COLORREF resolved = 0;
    return SUCCEEDED(OleTranslateColor(static_cast<OLE_COLOR>(colour), nullptr, &resolved)) ? resolved
                                                                                            : otherwise;
}
