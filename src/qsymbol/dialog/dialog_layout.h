#pragma once

#include "qmath/point.h"
#include "qmath/rect.h"

#include <cstdint>

/// Where the controls of the selection dialog are: plain arithmetic on pixels.
namespace qsymbol {

struct DialogSize {
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend bool operator==(const DialogSize&, const DialogSize&) = default;
};

/// What the arrangement follows, all in pixels of the dialog's font.
struct DialogMeasures {
    std::int32_t averageWidth = 0; ///< of a character: 4 dialog units
    std::int32_t lineHeight = 0;   ///< of a line: 8 dialog units
    // Widths of the captions; of the export button the longer one of its two.
    std::int32_t listLabel = 0;
    std::int32_t frame = 0;
    std::int32_t widthLabel = 0;
    std::int32_t heightLabel = 0;
    std::int32_t exportButton = 0;
    std::int32_t progressText = 0;
    std::int32_t ok = 0;
    std::int32_t cancel = 0;
};

/// The controls in pixels of the client area; right and bottom are the first pixels outside.
struct DialogPlaces {
    qmath::Rect listLabel;
    qmath::Rect list;
    qmath::Rect frame;
    qmath::Rect preview;
    qmath::Rect widthLabel;
    qmath::Rect width;
    qmath::Rect heightLabel;
    qmath::Rect height;
    qmath::Rect exportButton;
    qmath::Rect progress;
    qmath::Rect progressText;
    qmath::Rect saved; ///< what came of an export, in place of bar and text
    qmath::Rect ok;
    qmath::Rect cancel;
};

/// The smallest client area in which everything has its place.
DialogSize MinimumSize(const DialogMeasures& measures);

/// The client area that the dialog opens with.
DialogSize OpeningSize(const DialogMeasures& measures);

/// List and preview share what the client area has beyond the minimum; everything else keeps its size. A
/// smaller client area is arranged as the minimum.
DialogPlaces PlaceControls(const DialogMeasures& measures, DialogSize client);

/// Space between the preview's edge and the symbol in it.
std::int32_t PreviewMargin(const DialogMeasures& measures);

/// The top left corner of a window over the middle of its owner, inside the work area where it fits.
qmath::Point CentredOver(const qmath::Rect& owner, DialogSize window, const qmath::Rect& workArea);

/// How far a symbol that is fitted into a box, and so begins at its top left corner, is to be moved to stand
/// in its middle. A symbol without width or height, whose extent is not known, stays where it is.
qmath::Point PreviewOffset(std::int32_t symbolWidth, std::int32_t symbolHeight, std::int32_t boxWidth,
                           std::int32_t boxHeight);

} // namespace qsymbol
