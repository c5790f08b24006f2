#include "automation/dialog/symbol_view.h"

#include "automation/dialog/control_ids.h"
#include "automation/dialog/painting_pause.h"
#include "automation/dialog/window_text.h"
#include "com/object_call.h"
#include "qsymbol/dialog/dialog_layout.h"
#include "qsymbol/dialog/dialog_texts.h"

#include <utility>

namespace dialog {

namespace {

constexpr int kBorder = 1; // round the picture, as round the list

} // namespace

void SymbolView::Attach(HWND dialog) {
    preview_ = GetDlgItem(dialog, IDC_SymPict);
    width_ = GetDlgItem(dialog, IDC_txBreite);
    height_ = GetDlgItem(dialog, IDC_txHoehe);
}

bool SymbolView::Show(const com::ComPtr<_CSymbol>& symbol) {
    const unsigned show = ++shows_;
    // Emptied and filled again without a glimpse of the emptiness.
    const PaintingPause width(width_);
    const PaintingPause height(height_);
    pict_->Clear();
    InvalidateRect(preview_, nullptr, FALSE);
    SetWindowText(width_, {});
    SetWindowText(height_, {});
    shown_ = symbol;
    if (!symbol)
        return true;
    Draw();
    if (show != shows_)
        return false;
    ShowSize(*symbol.Get());
    return show == shows_;
}

void SymbolView::ShowSize(_CSymbol& symbol) const {
    const LONG width = com::Get(symbol, &_CSymbol::get_Width);
    const LONG height = com::Get(symbol, &_CSymbol::get_Height);
    const double unitFactor = services_.unitFactor();
    const std::u16string decimal = services_.decimal();
    SetWindowText(width_, qsymbol::SizeText(width, unitFactor, decimal));
    SetWindowText(height_, qsymbol::SizeText(height, unitFactor, decimal));
}

void SymbolView::Draw() {
    const com::ComPtr<_CSymbol> symbol = shown_;
    if (!symbol)
        return;
    LONG width = 0;
    LONG height = 0;
    if (FAILED(symbol->get_Width(&width)) || FAILED(symbol->get_Height(&height)))
        width = height = 0; // told when the size is shown
    const SIZE box = pict_->Scale();
    const qmath::Point offset = qsymbol::PreviewOffset(width, height, box.cx, box.cy);
    {
        const SymPict::Drawing drawing(*pict_.Get(), {offset.x, offset.y});
        com::Call(*symbol, &_CSymbol::Draw2PBox, pict_.Get());
    }
    InvalidateRect(preview_, nullptr, FALSE);
    if (std::exchange(pictureWaits_, false))
        FitPicture(margin_);
}

void SymbolView::FitPicture(int margin) {
    margin_ = margin;
    pictureWaits_ = pict_->IsBeingDrawnOn();
    if (pictureWaits_)
        return;
    RECT area{};
    GetClientRect(preview_, &area);
    pict_->Resize({area.right - 2 * kBorder, area.bottom - 2 * kBorder}, margin);
    InvalidateRect(preview_, nullptr, FALSE);
    Draw();
}

void SymbolView::Paint(const DRAWITEMSTRUCT& item) const {
    FrameRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_3DSHADOW));
    pict_->Picture().Show(item.hDC, {kBorder, kBorder});
}

} // namespace dialog
