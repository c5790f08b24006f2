#pragma once

#include "automation/dialog/dialog_font.h"
#include "qsymbol/dialog/dialog_layout.h"

#include <string>

namespace dialog {

/// Puts the dialog's controls into their places, by font, captions and the size of the window.
class Arrangement {
public:
    /// Takes the desktop's font for the dialog's resolution and measures the captions. `exportCaptions` are
    /// the two that the export button may have, `longestProgress` is the widest progress text.
    void Prepare(HWND dialog, const std::u16string (&exportCaptions)[2],
                 const std::u16string& longestProgress);
    /// The dialog in its opening size over its owner.
    void PlaceWindow(HWND dialog) const;
    void PlaceControls(HWND dialog) const;

    SIZE MinimumWindow(HWND dialog) const;
    int PreviewMargin() const { return qsymbol::PreviewMargin(measures_); }

private:
    DialogFont font_;
    qsymbol::DialogMeasures measures_;
};

} // namespace dialog
