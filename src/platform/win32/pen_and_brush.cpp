#include "platform/win32/pen_and_brush.h"

namespace platform {

HPEN NewPen(LONG drawStyle, LONG drawWidth, COLORREF colour) {
    const bool isDashed = drawStyle > PS_SOLID && drawStyle < PS_NULL;
    const LONG style = isDashed && drawWidth > 1 ? PS_SOLID : drawStyle;
    return CreatePen(static_cast<int>(style), static_cast<int>(drawWidth), colour);
}

HBRUSH NewBrush(LONG fillStyle, COLORREF colour) {
    constexpr LONG kSolid = 0;
    constexpr LONG kTransparent = 1;
    switch (fillStyle) {
    case kSolid: return CreateSolidBrush(colour);
    case kTransparent: return static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
    default: return CreateHatchBrush(static_cast<int>(fillStyle) - 2, colour);
    }
}

} // namespace platform
