#pragma once

#include "../com.h"

#include <QMath.h>

#include <cstdint>

/// Which part of the plan a picture shows: a cut-out, in pixels, of an endless sheet. A pixel covers a whole number of
/// 256ths of a unit, so tiles of 256 pixels begin at whole units, and panning moves by whole pixels: what is drawn once
/// stays right.
class ViewMap {
public:
    static constexpr int kTile = 256;

    /// area, in units, in the middle of so many pixels, as large as a margin allows.
    static ViewMap Fit(const RECT& area, SIZE pixels, int margin);

    /// Units that one pixel covers.
    double Scale() const { return static_cast<double>(parts_) / kTile; }
    /// Units that a tile covers.
    std::int64_t TileUnits() const { return parts_; }
    /// The sheet's pixel at the picture's upper left.
    POINT Origin() const { return origin_; }

    POINT ToPlan(POINT pixel) const;
    POINT ToPixel(POINT units) const;
    RECT ToPixels(const RECT& units) const;

    void MoveBy(int right, int down);
    /// The place under this pixel stays there; scale: in units for a pixel.
    void ScaleAbout(POINT pixel, double scale);

    /// The map as the libraries take it.
    Ptr<_CTrans> Transformation() const;
    /// The same for a tile that is drawn in finer pixels. fineness: of them along a pixel.
    Ptr<_CTrans> TileTransformation(POINT tile, int fineness) const;

    bool operator==(const ViewMap& other) const {
        return parts_ == other.parts_ && origin_.x == other.origin_.x && origin_.y == other.origin_.y;
    }

private:
    std::int64_t parts_ = 256LL * kTile;
    POINT origin_{};
};
