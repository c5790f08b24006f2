#pragma once

#include "../com.h"

#include <QSymbol.h>

#include <unordered_map>
#include <vector>

/// Small pictures of symbols, made when they are first asked for and kept for as long as there is room.
class PaletteThumbnails {
public:
    /// side: of the square in which a symbol stands, in pixels. What was kept is given up.
    void SetSide(int side);
    int Side() const { return side_; }
    /// Gives up what was kept: the numbers mean other symbols now.
    void Clear() { pictures_.clear(); }

    bool Has(std::size_t number) const { return pictures_.contains(number); }
    /// Draws the picture of a symbol, with its left top corner there. A symbol that cannot be drawn has an empty one.
    void Draw(HDC dc, POINT at, std::size_t number, _CSymbol& symbol);

private:
    struct Picture {
        std::vector<DWORD> pixels;
        unsigned lastUse = 0;
    };

    void MakeRoom();

    std::unordered_map<std::size_t, Picture> pictures_;
    int side_ = 0;
    unsigned uses_ = 0;
};
