#pragma once

#include <cstddef>
#include <optional>
#include <vector>

/// A place in the palette's list, in pixels from the list's top; right and bottom are the first pixels outside.
struct PalettePlace {
    int left = 0, top = 0, right = 0, bottom = 0;
};

/// What the list's arrangement follows, in pixels.
struct PaletteMeasures {
    int width = 0;     ///< of the list
    int tileWidth = 0; ///< the smallest of a tile; tiles share what a row has left
    int tileHeight = 0;
    int heading = 0; ///< height of a section's heading
    int gap = 0;     ///< between tiles and round them
};

/// Where tiles and headings of the palette's list are. Tiles are numbered through all sections; nothing is kept for each of
/// them, so that ten thousand cost what ten do.
class PaletteLayout {
public:
    PaletteLayout() = default;
    /// counts: of the tiles of each section.
    PaletteLayout(const std::vector<std::size_t>& counts, const PaletteMeasures& measures);

    int Height() const { return height_; }
    int Gap() const { return measures_.gap; }
    std::size_t Tiles() const {
        return sections_.empty() ? 0 : sections_.back().first + sections_.back().count;
    }
    std::size_t Sections() const { return sections_.size(); }
    PalettePlace Heading(std::size_t section) const;
    PalettePlace Tile(std::size_t tile) const;
    std::size_t SectionOf(std::size_t tile) const;
    std::size_t FirstOf(std::size_t section) const { return sections_[section].first; }

    /// The tile at a point; nothing beside tiles.
    std::optional<std::size_t> At(int x, int y) const;
    /// The first tile and the one after the last that lie between two heights.
    std::pair<std::size_t, std::size_t> Between(int top, int bottom) const;
    /// The tile so many rows below another, in its column as far as there is one.
    std::size_t RowsBelow(std::size_t tile, int rows) const;

private:
    struct Section {
        std::size_t first = 0;
        std::size_t count = 0;
        int top = 0; ///< of the heading
        int tilesTop = 0;
    };

    int RowsOf(const Section& section) const {
        return static_cast<int>((section.count + columns_ - 1) / columns_);
    }
    int RowHeight() const { return measures_.tileHeight + measures_.gap; }

    std::vector<Section> sections_;
    PaletteMeasures measures_;
    std::size_t columns_ = 1;
    int height_ = 0;
};
