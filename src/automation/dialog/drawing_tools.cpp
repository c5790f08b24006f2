#include "automation/dialog/drawing_tools.h"

#include "base/error.h"
#include "platform/win32/pen_and_brush.h"

#include <oleauto.h>
#include <olectl.h>

#include <utility>

namespace dialog {

namespace {

COLORREF Colour(LONG value) {
    COLORREF colour = 0;
    if (FAILED(OleTranslateColor(static_cast<OLE_COLOR>(value), nullptr, &colour)))
        base::Raise(base::RunTimeError::InvalidCall);
    return colour;
}

} // namespace

DrawingTools::~DrawingTools() {
    DeleteObject(pen_);
    DeleteObject(brush_);
}

void DrawingTools::Replace(HDC context, HGDIOBJ& current, HGDIOBJ fresh) {
    if (fresh == nullptr)
        base::Raise(base::RunTimeError::InvalidCall);
    SelectObject(context, fresh);
    DeleteObject(std::exchange(current, fresh)); // stock objects survive that
}

void DrawingTools::Select(HDC context, const DrawingStyle& style) {
    if (style.drawMode < R2_BLACK || style.drawMode > R2_WHITE || style.drawWidth < 1 ||
        style.drawStyle < 0 || style.drawStyle > platform::kLastDrawStyle || style.fillStyle < 0 ||
        style.fillStyle > platform::kLastFillStyle)
        base::Raise(base::RunTimeError::InvalidCall);
    const COLORREF fore = Colour(style.foreColor);
    const COLORREF fill = Colour(style.fillColor);
    Replace(context, pen_, platform::NewPen(style.drawStyle, style.drawWidth, fore));
    Replace(context, brush_, platform::NewBrush(style.fillStyle, fill));
    SetTextColor(context, fore);
    SetROP2(context, style.drawMode);
}

void DrawingTools::Release(HDC context) {
    Replace(context, pen_, GetStockObject(BLACK_PEN));
    Replace(context, brush_, GetStockObject(WHITE_BRUSH));
}

} // namespace dialog
