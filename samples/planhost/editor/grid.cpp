#include "grid.h"

#include "../millimetres.h"

#include <cmath>

namespace {

constexpr int kClosest = 14; // pixels between two points
constexpr int kStrong = 10;  // of so many points one is larger

LONG Nearest(LONG place, LONG step) {
    return std::lround(static_cast<double>(place) / step) * step;
}

void Darken(Bitmap& picture, LONG x, LONG y) {
    if (x < 0 || y < 0 || x >= picture.Width() || y >= picture.Height())
        return;
    BYTE* pixel = picture.Bits() + y * ((picture.Width() * 3 + 3) / 4 * 4) + x * 3;
    for (int i = 0; i < 3; ++i)
        pixel[i] = static_cast<BYTE>(pixel[i] / 2);
}

} // namespace

LONG GridStep(double unitsPerPixel) {
    const double least = unitsPerPixel * kClosest;
    for (LONG decade = kUnitsPerMillimetre;; decade *= 10) {
        for (const LONG step : {decade, 2 * decade, 5 * decade}) {
            if (step >= least)
                return step;
        }
    }
}

POINT OnGrid(POINT place, LONG step) {
    return {Nearest(place.x, step), Nearest(place.y, step)};
}

void DrawGrid(Bitmap& picture, const ViewMap& map) {
    GdiFlush();
    const LONG step = GridStep(map.Scale());
    const POINT first = OnGrid(map.ToPlan({0, 0}), step);
    const POINT last = OnGrid(map.ToPlan({picture.Width(), picture.Height()}), step);
    for (LONG y = first.y; y <= last.y; y += step) {
        for (LONG x = first.x; x <= last.x; x += step) {
            const POINT pixel = map.ToPixel({x, y});
            Darken(picture, pixel.x, pixel.y);
            if (x / step % kStrong != 0 || y / step % kStrong != 0)
                continue;
            for (const POINT beside : {POINT{-1, 0}, {1, 0}, {0, -1}, {0, 1}})
                Darken(picture, pixel.x + beside.x, pixel.y + beside.y);
        }
    }
}
