#include "palette_layout.h"

#include <algorithm>

PaletteLayout::PaletteLayout(const std::vector<std::size_t>& counts, const PaletteMeasures& measures)
    : measures_(measures) {
    const int step = std::max(measures.tileWidth + measures.gap, 1);
    columns_ = static_cast<std::size_t>(std::max((measures.width - measures.gap) / step, 1));
    std::size_t first = 0;
    for (const std::size_t count : counts) {
        const Section section{first, count, height_, height_ + measures.heading};
        sections_.push_back(section);
        first += count;
        height_ = section.tilesTop + RowsOf(section) * RowHeight();
    }
    height_ += sections_.empty() ? 0 : measures.gap;
}

PalettePlace PaletteLayout::Heading(std::size_t section) const {
    return {0, sections_[section].top, measures_.width, sections_[section].tilesTop};
}

std::size_t PaletteLayout::SectionOf(std::size_t tile) const {
    const auto after = std::ranges::upper_bound(sections_, tile, {}, &Section::first);
    return static_cast<std::size_t>(after - sections_.begin()) - 1;
}

PalettePlace PaletteLayout::Tile(std::size_t tile) const {
    const Section& section = sections_[SectionOf(tile)];
    const int column = static_cast<int>((tile - section.first) % columns_);
    const int row = static_cast<int>((tile - section.first) / columns_);
    const int columns = static_cast<int>(columns_);
    const int room = std::max(measures_.width - (columns + 1) * measures_.gap, columns);
    const auto edge = [&](int at) { return measures_.gap * (at + 1) + room * at / columns; };
    const int top = section.tilesTop + row * RowHeight();
    return {edge(column), top, edge(column + 1) - measures_.gap, top + measures_.tileHeight};
}

std::optional<std::size_t> PaletteLayout::At(int x, int y) const {
    const auto [first, last] = Between(y, y + 1);
    for (std::size_t tile = first; tile < last; ++tile) {
        const PalettePlace place = Tile(tile);
        if (x >= place.left && x < place.right && y >= place.top && y < place.bottom)
            return tile;
    }
    return std::nullopt;
}

std::pair<std::size_t, std::size_t> PaletteLayout::Between(int top, int bottom) const {
    std::size_t first = Tiles(), last = 0;
    for (const Section& section : sections_) {
        const auto limit = [&](int row) {
            return section.first +
                   std::min(static_cast<std::size_t>(std::clamp(row, 0, RowsOf(section))) * columns_,
                            section.count);
        };
        if (bottom <= section.tilesTop || top >= section.tilesTop + RowsOf(section) * RowHeight())
            continue;
        first = std::min(first, limit((top - section.tilesTop) / RowHeight()));
        last = std::max(last, limit((bottom - 1 - section.tilesTop) / RowHeight() + 1));
    }
    return {std::min(first, last), last};
}

std::size_t PaletteLayout::RowsBelow(std::size_t tile, int rows) const {
    for (; rows != 0; rows += rows > 0 ? -1 : 1) {
        const std::size_t here = SectionOf(tile);
        const Section& section = sections_[here];
        const std::size_t at = tile - section.first;
        if (rows > 0) {
            if (at / columns_ + 1 < static_cast<std::size_t>(RowsOf(section)))
                tile = section.first + std::min(at + columns_, section.count - 1);
            else if (here + 1 < sections_.size())
                tile = sections_[here + 1].first + std::min(at % columns_, sections_[here + 1].count - 1);
        } else if (at >= columns_) {
            tile -= columns_;
        } else if (here > 0) {
            const Section& above = sections_[here - 1];
            const std::size_t lastRow = static_cast<std::size_t>(RowsOf(above) - 1) * columns_;
            tile = above.first + std::min(lastRow + at, above.count - 1);
        }
    }
    return tile;
}
