#include "marks.h"

#include "dpi.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr COLORREF kMarkColour = RGB(0, 95, 184);
constexpr COLORREF kHoverColour = RGB(90, 160, 220);
// In pixels of a screen of 100 %.
constexpr int kLine = 1;
constexpr int kHandle = 3; // from its middle to its edge
constexpr int kTurnHandle = 5;
constexpr int kStem = 26;    // from the frame to the turn handle
constexpr int kGrasp = 9;    // from its middle, where it is taken hold of
constexpr int kGroupGap = 5; // between the frames of the members and that of the group

class Pen {
public:
    Pen(HDC dc, int style, int width, COLORREF colour)
        : dc_(dc), state_(SaveDC(dc)), pen_(CreatePen(style, width, colour)) {
        SelectObject(dc, pen_);
        SelectObject(dc, GetStockObject(NULL_BRUSH));
        SetBkMode(dc, TRANSPARENT);
    }
    Pen(const Pen&) = delete;
    ~Pen() {
        RestoreDC(dc_, state_);
        DeleteObject(pen_);
    }

private:
    HDC dc_;
    int state_;
    HPEN pen_;
};

POINT Middle(POINT one, POINT other) {
    return {(one.x + other.x) / 2, (one.y + other.y) / 2};
}

void DrawHandles(HDC dc, const Marks::Corners& corners, int half) {
    for (const auto& [x, y] : corners)
        Rectangle(dc, x - half, y - half, x + half + 1, y + half + 1);
}

/// Above the upper edge, as the frame is turned.
POINT TurnHandle(const Marks::Corners& frame, POINT stem, int away) {
    const double dx = frame[0].x - frame[3].x;
    const double dy = frame[0].y - frame[3].y;
    const double length = std::hypot(dx, dy);
    if (length == 0)
        return {stem.x, stem.y - away};
    return {stem.x + std::lround(dx / length * away), stem.y + std::lround(dy / length * away)};
}

} // namespace

std::optional<Marks> MarksOf(const PlanDocument& document, const PlanScene& scene, const ViewMap& map,
                             UINT dots) {
    Marks marks{};
    marks.dots = dots;
    std::optional<RECT> all;
    for (const std::size_t place : document.Marks().Places()) {
        Marks::Corners corners;
        std::ranges::transform(scene.Corners(place), corners.begin(),
                               [&](POINT corner) { return map.ToPixel(corner); });
        marks.frames.push_back(corners);
        all = all ? Joined(*all, Around(corners)) : Around(corners);
    }
    if (!all)
        return std::nullopt;
    if (marks.frames.size() > 1) {
        InflateRect(&*all, Scaled(kGroupGap, dots), Scaled(kGroupGap, dots));
        marks.group = {{{all->left, all->top},
                        {all->right, all->top},
                        {all->right, all->bottom},
                        {all->left, all->bottom}}};
    }
    const Marks::Corners& frame = marks.group ? *marks.group : marks.frames.front();
    marks.stem = Middle(frame[0], frame[1]);
    marks.turnHandle = TurnHandle(frame, marks.stem, Scaled(kStem, dots));
    return marks;
}

void DrawMarks(HDC dc, const std::optional<Marks>& marks) {
    if (!marks)
        return;
    if (marks->group) {
        const Pen dashed(dc, PS_DOT, 1, kMarkColour); // a wider one would have no dots
        Polygon(dc, marks->group->data(), 4);
    }
    const Pen pen(dc, PS_SOLID, Scaled(kLine, marks->dots), kMarkColour);
    for (const Marks::Corners& frame : marks->frames)
        Polygon(dc, frame.data(), 4);
    const POINT stem[] = {marks->stem, marks->turnHandle};
    Polyline(dc, stem, 2);
    SelectObject(dc, GetStockObject(WHITE_BRUSH));
    DrawHandles(dc, marks->group ? *marks->group : marks->frames.front(), Scaled(kHandle, marks->dots));
    const auto [x, y] = marks->turnHandle;
    const int radius = Scaled(kTurnHandle, marks->dots);
    Ellipse(dc, x - radius, y - radius, x + radius + 1, y + radius + 1);
}

bool IsTurnHandleAt(const std::optional<Marks>& marks, POINT pixel) {
    return marks && std::hypot(pixel.x - marks->turnHandle.x, pixel.y - marks->turnHandle.y) <=
                        Scaled(kGrasp, marks->dots);
}

void DrawHoverFrame(HDC dc, const Marks::Corners& corners, UINT dots) {
    const Pen pen(dc, PS_SOLID, Scaled(kLine, dots), kHoverColour);
    Polygon(dc, corners.data(), 4);
}
