#include "automation/qplan/drawing_tools.h"

#include "automation/qplan/ole_colour.h"
#include "base/error.h"
#include "platform/win32/pen_and_brush.h"

#include <utility>

namespace {

using base::RunTimeError;

struct Range {
    LONG least;
    LONG most;
};

constexpr LONG kWidestPen = 0x7FFF;
/// In the order of the properties; a colour is whatever it is.
constexpr Range kRanges[] = {{R2_BLACK, R2_WHITE},          {LONG_MIN, LONG_MAX},
                             {LONG_MIN, LONG_MAX},          {0, platform::kLastFillStyle},
                             {0, platform::kLastDrawStyle}, {1, kWidestPen}};

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
    case DrawWidth: UsePen(); break;
    case FillColor:
    case FillStyle: UseBrush(); break;
    }
}

void DrawingTools::UsePen() {
    Use(pen_, platform::NewPen(values_[DrawStyle], values_[DrawWidth], ColourOr(values_[ForeColor], 0)));
}

void DrawingTools::UseBrush() {
    Use(brush_, platform::NewBrush(values_[FillStyle], ColourOr(values_[FillColor], 0)));
}

/// Deletes the pen or brush that the next one replaces; stock objects survive that.
void DrawingTools::Use(HGDIOBJ& current, HGDIOBJ next) {
    if (next == nullptr)
        base::Raise(RunTimeError::OutOfMemory);
    SelectObject(context_, next);
    DeleteObject(std::exchange(current, next));
}
