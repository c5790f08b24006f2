#include "automation/dialog/drawing_tools.h"

#include "base/error.h"

#include <oleauto.h>
#include <olectl.h>

#include <utility>

namespace dialog {

namespace {

// Values of DrawStyle; below are the GDI's solid, dashed and dotted pens.
constexpr LONG kInvisible = 5;
constexpr LONG kInsideSolid = 6;
// Values of FillStyle; above are the GDI's hatches.
constexpr LONG kSolid = 0;
constexpr LONG kTransparent = 1;
constexpr LONG kFirstHatch = 2;

COLORREF Colour(LONG value) {
    COLORREF colour = 0;
    if (FAILED(OleTranslateColor(static_cast<OLE_COLOR>(value), nullptr, &colour)))
        base::Raise(base::RunTimeError::InvalidCall);
    return colour;
}

int PenStyle(LONG drawStyle, LONG width) {
    switch (drawStyle) {
    case kInvisible: return PS_NULL;
    case kInsideSolid: return PS_INSIDEFRAME;
    default: return width > 1 ? PS_SOLID : static_cast<int>(drawStyle); // only thin lines can be dashed
    }
}

HGDIOBJ Brush(LONG fillStyle, COLORREF colour) {
    switch (fillStyle) {
    case kSolid: return CreateSolidBrush(colour);
    case kTransparent: return GetStockObject(NULL_BRUSH);
    default: return CreateHatchBrush(fillStyle - kFirstHatch, colour);
    }
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
        style.drawStyle < 0 || style.drawStyle > kInsideSolid || style.fillStyle < 0 ||
        style.fillStyle > kFirstHatch + HS_DIAGCROSS)
        base::Raise(base::RunTimeError::InvalidCall);
    const COLORREF fore = Colour(style.foreColor);
    const COLORREF fill = Colour(style.fillColor);
    Replace(context, pen_, CreatePen(PenStyle(style.drawStyle, style.drawWidth), style.drawWidth, fore));
    Replace(context, brush_, Brush(style.fillStyle, fill));
    SetTextColor(context, fore);
    SetROP2(context, style.drawMode);
}

void DrawingTools::Release(HDC context) {
    Replace(context, pen_, GetStockObject(BLACK_PEN));
    Replace(context, brush_, GetStockObject(WHITE_BRUSH));
}

} // namespace dialog
