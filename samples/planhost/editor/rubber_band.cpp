#include "rubber_band.h"

#include <algorithm>
#include <cstdlib>

void RubberBand::MouseMove(PlanView& view, POINT pixel) {
    Draw(view);
    to_ = pixel;
    Draw(view);
}

void RubberBand::Draw(PlanView& view) const {
    if (!IsClick())
        view.InvertFrame(Frame());
}

PointedAt RubberBand::Place() const {
    return {IsClick() ? RECT{from_.x, from_.y, from_.x, from_.y} : Frame(), IsClick()};
}

bool RubberBand::IsClick() const {
    return std::labs(to_.x - from_.x) < GetSystemMetrics(SM_CXDRAG) &&
           std::labs(to_.y - from_.y) < GetSystemMetrics(SM_CYDRAG);
}

RECT RubberBand::Frame() const {
    return {std::min(from_.x, to_.x), std::min(from_.y, to_.y), std::max(from_.x, to_.x),
            std::max(from_.y, to_.y)};
}
