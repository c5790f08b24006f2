#pragma once

#include "../bitmap.h"
#include "palette_look.h"
#include "palette_thumbnails.h"
#include "palette_view.h"

#include <functional>
#include <memory>

/// Draws what is seen of the palette's list, each picture of a symbol only once.
class PalettePainter {
public:
    using SymbolOfNumber = std::function<_CSymbol&(std::size_t number)>;

    explicit PalettePainter(SymbolOfNumber symbolOf) : symbolOf_(std::move(symbolOf)) {}

    /// For a screen of so many dots to the inch. It is to live as long as this.
    void UseLook(const PaletteLook& look);
    /// For a list so many pixels wide.
    PaletteMeasures Measures(int width) const;
    /// Of the square in which a symbol stands, in pixels.
    int PictureSide() const { return thumbnails_.Side(); }
    /// The numbers of symbols mean others.
    void ForgetPictures() { thumbnails_.Clear(); }

    /// False where there was no time for every picture: what is missing comes at another painting.
    bool Paint(HDC target, const PaletteView& view);

private:
    void DrawHeading(HDC dc, const PaletteView& view, std::size_t section) const;
    void DrawTile(HDC dc, const PaletteView& view, std::size_t tile, bool mayMakePicture);
    void DrawStar(HDC dc, const RECT& paper) const;
    void DrawNothingFound(HDC dc, SIZE size) const;

    SymbolOfNumber symbolOf_;
    const PaletteLook* look_ = nullptr;
    PaletteThumbnails thumbnails_;
    std::unique_ptr<Bitmap> buffer_;
};
