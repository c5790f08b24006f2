#pragma once

#include "palette_layout.h"
#include "palette_model.h"

#include <windows.h>

#include <optional>

/// What is seen of the palette's list at this moment.
struct PaletteView {
    const PaletteModel& model;
    const PaletteLayout& layout;
    int top;   ///< of the part that is seen, in pixels of the list
    SIZE size; ///< of that part
    std::optional<std::size_t> selected;
    std::optional<std::size_t> hover;
    bool hasFocus;

    /// The number of a tile's symbol in the model.
    std::size_t SymbolOn(std::size_t tile) const {
        const std::size_t section = layout.SectionOf(tile);
        return model.Sections()[section].symbols[tile - layout.FirstOf(section)];
    }
    /// A tile's place in the window.
    RECT PlaceOf(std::size_t tile) const {
        const PalettePlace place = layout.Tile(tile);
        return {place.left, place.top - top, place.right, place.bottom - top};
    }
};
