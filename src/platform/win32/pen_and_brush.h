#pragma once

#include <windows.h>

namespace platform {

/// Of a picture box's properties: values go from 0 to these. DrawStyle is numbered as the GDI's pens are; FillStyle is 0 for
/// solid, 1 for transparent, then the GDI's hatches.
inline constexpr LONG kLastDrawStyle = PS_INSIDEFRAME;
inline constexpr LONG kLastFillStyle = 2 + HS_DIAGCROSS;

/// The pen for these properties, with round ends and corners; only one of a single pixel can be dashed. The caller deletes
/// it; null when the GDI has no room.
HPEN NewPen(LONG drawStyle, LONG drawWidth, COLORREF colour);

/// The brush for this property, which the caller deletes; a stock object survives that. Null when the GDI has no room.
HBRUSH NewBrush(LONG fillStyle, COLORREF colour);

} // namespace platform
