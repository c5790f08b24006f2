#include "automation/qplan/drawing_tools.h"

#include "automation/qplan/ole_colour.h"
#include "base/error.h"

#include <utility>

namespace {

using base::RunTimeError;

struct Range {
    LONG least;
    LONG most;
};

constexpr LONG kWidestPen = 0x7FFF;
/// In the order of the properties; a colour is whatever it is.
constexpr Range kRanges[] = {{R2_BLACK, R2_WHITE},  {LONG_MIN, LONG_MAX},       {LONG_MIN, LONG_MAX},
                             {0, 2 + HS_DIAGCROSS}, {PS_SOLID, PS_INSIDEFRAME}, {1, kWidestPen}};

// Values of FillStyle; from 2 on the GDI's hatches.
constexpr LONG kSolid = 0;
constexpr LONG kHollow = 1;

} // namespace

DrawingTools::DrawingTools(HDC context) : DrawingTools(Bare{context}) {
    // Whole already: a failure takes out again what was selected before.
    Apply(DrawMode);
    Apply(ForeColor);
    Apply(FillStyle);
}

DrawingTools::~DrawingTools() {
    SelectObject(context_, GetStockObject(BLACK_PEN));
    SelectObject(context_, GetStockObject(WHITE_BRUSH));
    DeleteObject(pen_);
    DeleteObject(brush_);
}

void DrawingTools::Put(Property property, LONG value) {
    if (value < kRanges[property].least || value > kRanges[property].most)
        base::Raise(RunTimeError::InvalidCall);
    const LONG old = std::exchange(values_[property], value);
    if (old == value)
        return;
    try {
        Apply(property);
    } catch (...) {
        values_[property] = old;
        throw;
    }
}

void DrawingTools::Line(POINT from, POINT to) const {
    MoveToEx(context_, from.x, from.y, nullptr);
    LineTo(context_, to.x, to.y);
}

void DrawingTools::Apply(Property property) {
    switch (property) {
    case DrawMode: SetROP2(context_, static_cast<int>(values_[DrawMode])); break; // numbered as the GDI does
    case ForeColor: SetTextColor(context_, ColourOr(values_[ForeColor], 0)); [[fallthrough]];
    case DrawStyle:
    case DrawWidth: Use(pen_, MakePen()); break;
    case FillColor:
    case FillStyle: Use(brush_, MakeBrush()); break;
    }
}

HPEN DrawingTools::MakePen() const {
    LONG style = values_[DrawStyle];
    if (values_[DrawWidth] > 1 && style < PS_NULL)
        style = PS_SOLID; // only thin lines can be dashed
    // This function gives thick lines round ends and corners.
    return CreatePen(static_cast<int>(style), static_cast<int>(values_[DrawWidth]),
                     ColourOr(values_[ForeColor], 0));
}

HBRUSH DrawingTools::MakeBrush() const {
    const COLORREF colour = ColourOr(values_[FillColor], 0);
    switch (const LONG style = values_[FillStyle]) {
    case kSolid: return CreateSolidBrush(colour);
    case kHollow: return static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
    default: return CreateHatchBrush(static_cast<int>(style) - 2, colour);
    }
}

/// Deletes the pen or brush that the next one replaces; stock objects survive that.
void DrawingTools::Use(HGDIOBJ& current, HGDIOBJ next) {
    if (next == nullptr)
        base::Raise(RunTimeError::OutOfMemory);
    SelectObject(context_, next);
    DeleteObject(std::exchange(current, next));
}
