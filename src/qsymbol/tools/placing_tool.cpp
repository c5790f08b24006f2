#include "qsymbol/tools/placing_tool.h"

#include "base/checked.h"
#include "qsymbol/tools/saved_pen.h"

namespace qsymbol {

void PlacingTool::Draw(DrawingTarget& target) const {
    if (!position_ || !HasImage())
        return;
    const SymbolPosition place{*position_, angle_}; // a host may send the next event from inside a put
    const bool ready = ready_;
    Surface& surface = target.OpenSurface();
    SavedPen pen(surface);
    if (ready)
        pen.UseCopyPen();
    else
        pen.UseInvertingPen();
    const Transformation& transformation = target.OpenTransformation();
    if (guideStart_ && !ready) {
        qmath::Point from = *guideStart_;
        qmath::Point to = place.at;
        transformation.WorldToScreen(from);
        transformation.WorldToScreen(to);
        surface.Line(from, to);
    }
    DrawImage(place, target);
}

void PlacingTool::MouseMove(ScreenPosition mouse, DrawingTarget& target) {
    if (!ready_)
        MoveTo(WorldPoint(mouse, target), target, Redraw::Yes);
}

qmath::Point PlacingTool::WorldPoint(ScreenPosition mouse, DrawingTarget& target) {
    qmath::Point point{base::RoundToLong(mouse.x), base::RoundToLong(mouse.y)};
    target.OpenTransformation().ScreenToWorld(point);
    return point;
}

void PlacingTool::MoveTo(qmath::Point position, DrawingTarget& target, Redraw redraw) {
    Draw(target);
    position_ = position;
    if (redraw == Redraw::Yes)
        Draw(target);
}

void PlacingTool::TurnTo(double angle, DrawingTarget& target) {
    Draw(target);
    angle_ = angle;
    Draw(target);
}

} // namespace qsymbol
