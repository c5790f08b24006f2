#include "automation/dialog/export_display.h"

#include "automation/dialog/control_ids.h"
#include "automation/dialog/window_text.h"
#include "qsymbol/dialog/progress_text.h"

#include <commctrl.h>

namespace dialog {

ExportDisplay::ExportDisplay(HWND dialog, std::size_t count)
    : dialog_(dialog), count_(count), caption_(WindowText(Control(IDC_pbJPG))) {
    SetWindowText(Control(IDC_pbJPG), kStopCaption);
    SendMessageW(Control(IDC_Progress), PBM_SETRANGE32, 0, static_cast<LPARAM>(count_));
    SendMessageW(Control(IDC_Progress), PBM_SETPOS, 0, 0);
    SetWindowText(Control(IDC_txProgress), {});
    ShowProgress(true);
}

ExportDisplay::~ExportDisplay() {
    ShowProgress(false);
    SetWindowText(Control(IDC_pbJPG), caption_);
}

void ExportDisplay::ShowProgress(bool show) const {
    for (const int id : {IDC_Progress, IDC_txProgress})
        ShowWindow(Control(id), show ? SW_SHOWNA : SW_HIDE);
}

void ExportDisplay::Tell(std::size_t current) const {
    SendMessageW(Control(IDC_Progress), PBM_SETPOS, current, 0);
    SetWindowText(Control(IDC_txProgress), qsymbol::ProgressText(current, count_));
}

} // namespace dialog
