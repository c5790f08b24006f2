#include "automation/dialog/export_display.h"

#include "automation/dialog/control_ids.h"
#include "automation/dialog/window_text.h"
#include "qsymbol/dialog/dialog_texts.h"

#include <commctrl.h>

namespace dialog {

ExportDisplay::ExportDisplay(HWND dialog, std::size_t count, const std::u16string& stopCaption)
    : button_(GetDlgItem(dialog, IDC_pbJPG)), bar_(GetDlgItem(dialog, IDC_Progress)),
      text_(GetDlgItem(dialog, IDC_txProgress)), saved_(GetDlgItem(dialog, IDC_txSaved)), count_(count),
      caption_(WindowText(button_)) {
    SetWindowText(button_, stopCaption);
    SendMessageW(bar_, PBM_SETRANGE32, 0, static_cast<LPARAM>(count_));
    SendMessageW(bar_, PBM_SETPOS, 0, 0);
    SetWindowText(text_, {});
    ShowWindow(saved_, SW_HIDE);
    ShowProgress(true);
}

ExportDisplay::~ExportDisplay() {
    ShowProgress(false);
    SetWindowText(button_, caption_);
}

void ExportDisplay::ShowProgress(bool show) const {
    for (const HWND control : {bar_, text_})
        ShowWindow(control, show ? SW_SHOWNA : SW_HIDE);
}

void ExportDisplay::Tell(std::size_t current) const {
    SendMessageW(bar_, PBM_SETPOS, current, 0);
    SetWindowText(text_, qsymbol::ProgressText(current, count_));
}

void ExportDisplay::Close(const std::u16string& line) const {
    ShowProgress(false);
    SetWindowText(saved_, line);
    ShowWindow(saved_, SW_SHOWNA);
}

} // namespace dialog
