#pragma once

#include "automation/dialog/SymPict.h"
#include "automation/dialog/services.h"

#include <QSymbol.h>

namespace dialog {

/// The part of the dialog that shows one symbol: preview, width and height.
class SymbolView {
public:
    /// The services must outlive the view.
    explicit SymbolView(const Services& services) : services_(services), pict_(SymPict::Create()) {}

    /// Takes its controls; shows nothing yet.
    void Attach(HWND dialog);

    /// Shows a symbol, or nothing for an empty pointer. A symbol of the host's own may let the user go on
    /// while it draws: false when meanwhile another one was shown, which stays. Errors of the symbol are
    /// passed on.
    bool Show(const com::ComPtr<_CSymbol>& symbol);
    /// A new picture, in the preview's present size. During a drawing it waits for the end of that.
    void FitPicture(int margin);
    void Paint(const DRAWITEMSTRUCT& item) const;
    /// Lets go of the symbol.
    void Clear() { shown_.Reset(); }

    const MemoryPicture& Picture() const { return pict_->Picture(); }

private:
    void Draw();
    void ShowSize(_CSymbol& symbol) const;

    const Services& services_;
    HWND preview_ = nullptr;
    HWND width_ = nullptr;
    HWND height_ = nullptr;
    com::ComPtr<SymPict> pict_;
    com::ComPtr<_CSymbol> shown_;
    unsigned shows_ = 0;        ///< counts what is shown, to notice one inside another
    bool pictureWaits_ = false; ///< the size changed while something was drawn
    int margin_ = 0;
};

} // namespace dialog
