#pragma once

#include "../pointed_at.h"
#include "plan_view.h"

/// A rectangle that the mouse draws up from one corner, or a click when it has hardly moved.
class RubberBand {
public:
    explicit RubberBand(POINT pixel) : from_(pixel), to_(pixel) {}

    void MouseMove(PlanView& view, POINT pixel);
    /// Shows the frame; a second time takes it away.
    void Draw(PlanView& view) const;
    PointedAt Place() const;

private:
    bool IsClick() const;
    RECT Frame() const;

    POINT from_;
    POINT to_;
};
