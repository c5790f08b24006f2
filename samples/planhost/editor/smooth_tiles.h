#pragma once

#include "../bitmap.h"
#include "../plan_drawing.h"
#include "view_map.h"

#include <functional>
#include <map>
#include <memory>

/// The smooth picture of a plan at one scale, in square tiles that are drawn one by one and kept. The GDI knows no smooth
/// lines, so a tile is drawn in finer pixels, and each pixel becomes the mean of those that lie in it.
class SmoothTiles {
public:
    /// Draws the plan as far as the canvas shows it.
    using Painter = std::function<void(const Canvas& canvas)>;

    /// A tile that the picture needs and that is not there or out of date; the one nearest to its middle.
    bool FindMissing(const ViewMap& map, SIZE pixels, POINT& tile) const;
    void Render(const ViewMap& map, POINT tile, const Painter& painter);
    /// Everything touched by area is out of date; it is shown until it is drawn anew.
    void Outdate(const ViewMap& map, const RECT& area);
    void OutdateAll();
    void Clear() { tiles_.clear(); }

    /// Copies the tiles that are there to where the map has them.
    void Copy(HDC to, const ViewMap& map, SIZE pixels) const;
    bool CoverAll(const ViewMap& map, SIZE pixels) const;

private:
    struct Tile {
        std::unique_ptr<Bitmap> picture;
        bool isOutdated = false;
    };
    struct Order {
        bool operator()(const POINT& one, const POINT& other) const {
            return one.y != other.y ? one.y < other.y : one.x < other.x;
        }
    };

    std::map<POINT, Tile, Order> tiles_;
    std::unique_ptr<Bitmap> fine_; ///< a tile in its finer pixels
};
