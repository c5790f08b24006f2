#include "smooth_tiles.h"

#include <cmath>
#include <limits>

namespace {

constexpr int kTile = ViewMap::kTile;
constexpr int kFineness = 3;            // finer pixels along a pixel
constexpr std::size_t kMostTiles = 160; // 200 KiB each

LONG Below(LONG value) {
    return static_cast<LONG>(std::floor(static_cast<double>(value) / kTile));
}

/// The tiles that a picture shows; right and bottom belong to it.
RECT TilesOf(const ViewMap& map, SIZE pixels) {
    const auto [x, y] = map.Origin();
    return {Below(x), Below(y), Below(x + pixels.cx - 1), Below(y + pixels.cy - 1)};
}

/// Every pixel becomes the mean of the finer ones.
void Smooth(const Bitmap& fine, Bitmap& smooth) {
    GdiFlush();
    constexpr int kRow = kTile * 3;
    constexpr int kFineRow = kRow * kFineness; // both are multiples of four
    constexpr unsigned kParts = kFineness * kFineness;
    unsigned sums[kRow];
    for (int y = 0; y < kTile; ++y) {
        std::fill_n(sums, kRow, 0U);
        for (int part = 0; part < kFineness; ++part) {
            const BYTE* from = fine.Bits() + (y * kFineness + part) * kFineRow;
            for (int x = 0; x < kRow; x += 3, from += 3 * kFineness) {
                for (int byte = 0; byte < 3 * kFineness; ++byte)
                    sums[x + byte % 3] += from[byte];
            }
        }
        BYTE* to = smooth.Bits() + y * kRow;
        for (int x = 0; x < kRow; ++x)
            to[x] = static_cast<BYTE>((sums[x] + kParts / 2) / kParts);
    }
}

} // namespace

bool SmoothTiles::FindMissing(const ViewMap& map, SIZE pixels, POINT& tile) const {
    const RECT needed = TilesOf(map, pixels);
    double nearest = std::numeric_limits<double>::max();
    for (LONG y = needed.top; y <= needed.bottom; ++y) {
        for (LONG x = needed.left; x <= needed.right; ++x) {
            const auto found = tiles_.find({x, y});
            const bool isMissing = found == tiles_.end();
            if (!isMissing && !found->second.isOutdated)
                continue;
            // What is out of date comes first: something has been moved there.
            const double distance =
                std::hypot(x - (needed.left + needed.right) / 2.0, y - (needed.top + needed.bottom) / 2.0) +
                (isMissing ? 1000 : 0);
            if (distance < nearest) {
                nearest = distance;
                tile = {x, y};
            }
        }
    }
    return nearest != std::numeric_limits<double>::max();
}

void SmoothTiles::Render(const ViewMap& map, POINT tile, const Painter& painter) {
    if (!fine_)
        fine_ = std::make_unique<Bitmap>(kTile * kFineness, kTile * kFineness);
    if (tiles_.size() >= kMostTiles)
        tiles_.clear();
    const Ptr<_CTrans> transformation = map.TileTransformation(tile, kFineness);
    painter({fine_->Dc(), {fine_->Width(), fine_->Height()}, *transformation.Get(), kFineness});
    Tile& place = tiles_[tile];
    if (!place.picture)
        place.picture = std::make_unique<Bitmap>(kTile, kTile);
    Smooth(*fine_, *place.picture);
    place.isOutdated = false;
}

void SmoothTiles::Outdate(const ViewMap& map, const RECT& area) {
    const auto units = static_cast<double>(map.TileUnits());
    const double pixel = map.Scale();
    for (auto& [place, tile] : tiles_) {
        if ((place.x * units - pixel) <= area.right && area.left <= ((place.x + 1) * units + pixel) &&
            (place.y * units - pixel) <= area.bottom && area.top <= ((place.y + 1) * units + pixel))
            tile.isOutdated = true;
    }
}

void SmoothTiles::OutdateAll() {
    for (auto& [place, tile] : tiles_)
        tile.isOutdated = true;
}

void SmoothTiles::Copy(HDC to, const ViewMap& map, SIZE pixels) const {
    const auto [left, top] = map.Origin();
    const RECT picture{0, 0, pixels.cx, pixels.cy};
    for (const auto& [place, tile] : tiles_) {
        const int x = place.x * kTile - left;
        const int y = place.y * kTile - top;
        const RECT there{x, y, x + kTile, y + kTile};
        RECT seen;
        if (IntersectRect(&seen, &picture, &there))
            BitBlt(to, x, y, kTile, kTile, tile.picture->Dc(), 0, 0, SRCCOPY);
    }
}

bool SmoothTiles::CoverAll(const ViewMap& map, SIZE pixels) const {
    const RECT needed = TilesOf(map, pixels);
    for (LONG y = needed.top; y <= needed.bottom; ++y) {
        for (LONG x = needed.left; x <= needed.right; ++x) {
            if (!tiles_.contains({x, y}))
                return false;
        }
    }
    return true;
}
