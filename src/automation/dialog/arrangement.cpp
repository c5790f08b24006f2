#include "automation/dialog/arrangement.h"

#include "automation/dialog/control_ids.h"
#include "automation/dialog/window_text.h"

#include <algorithm>
#include <iterator>

namespace dialog {

namespace {

using qsymbol::DialogPlaces;

struct Place {
    int control;
    qmath::Rect DialogPlaces::*rect;
};

constexpr Place kPlaces[] = {
    {IDC_Label, &DialogPlaces::listLabel},
    {IDC_lbSymbole, &DialogPlaces::list},
    {IDC_Frame, &DialogPlaces::frame},
    {IDC_SymPict, &DialogPlaces::preview},
    {IDC_LabelBreite, &DialogPlaces::widthLabel},
    {IDC_txBreite, &DialogPlaces::width},
    {IDC_LabelHoehe, &DialogPlaces::heightLabel},
    {IDC_txHoehe, &DialogPlaces::height},
    {IDC_pbJPG, &DialogPlaces::exportButton},
    {IDC_Progress, &DialogPlaces::progress},
    {IDC_txProgress, &DialogPlaces::progressText},
    {IDC_txSaved, &DialogPlaces::saved},
    {IDC_pbOk, &DialogPlaces::ok},
    {IDC_pbCancel, &DialogPlaces::cancel},
};

BOOL CALLBACK UseFont(HWND control, LPARAM font) {
    SendMessageW(control, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
    return TRUE;
}

RECT ClientArea(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return area;
}

/// What the frame of a window adds to its client area.
SIZE FrameOf(HWND window) {
    const RECT client = ClientArea(window);
    RECT whole{};
    GetWindowRect(window, &whole);
    return {whole.right - whole.left - client.right, whole.bottom - whole.top - client.bottom};
}

qmath::Rect ToRect(const RECT& rect) {
    return {static_cast<std::int32_t>(rect.left), static_cast<std::int32_t>(rect.top),
            static_cast<std::int32_t>(rect.right), static_cast<std::int32_t>(rect.bottom)};
}

qmath::Rect WorkArea(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return ToRect(monitor.rcWork);
}

} // namespace

void Arrangement::Prepare(HWND dialog, const std::u16string (&exportCaptions)[2],
                          const std::u16string& longestProgress) {
    font_.CreateFor(dialog);
    SendMessageW(dialog, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
    EnumChildWindows(dialog, UseFont, reinterpret_cast<LPARAM>(font_.Get()));
    const TextMeter meter(dialog, font_.Get());
    const auto captionOf = [&](int control) {
        return meter.CaptionWidth(WindowText(GetDlgItem(dialog, control)));
    };
    measures_ = {.averageWidth = meter.AverageWidth(),
                 .lineHeight = meter.LineHeight(),
                 .listLabel = captionOf(IDC_Label),
                 .frame = captionOf(IDC_Frame),
                 .widthLabel = captionOf(IDC_LabelBreite),
                 .heightLabel = captionOf(IDC_LabelHoehe),
                 .exportButton =
                     std::max(meter.CaptionWidth(exportCaptions[0]), meter.CaptionWidth(exportCaptions[1])),
                 .progressText = meter.Width(longestProgress),
                 .ok = captionOf(IDC_pbOk),
                 .cancel = captionOf(IDC_pbCancel)};
}

void Arrangement::PlaceWindow(HWND dialog) const {
    const SIZE frame = FrameOf(dialog);
    const qsymbol::DialogSize opening = qsymbol::OpeningSize(measures_);
    const HWND owner = GetWindow(dialog, GW_OWNER);
    const qmath::Rect area = WorkArea(owner != nullptr ? owner : dialog);
    const qsymbol::DialogSize size{
        std::min(opening.width + static_cast<std::int32_t>(frame.cx), area.right - area.left),
        std::min(opening.height + static_cast<std::int32_t>(frame.cy), area.bottom - area.top)};
    RECT around{};
    const bool visible = owner != nullptr && IsWindowVisible(owner) != FALSE && IsIconic(owner) == FALSE &&
                         GetWindowRect(owner, &around) != FALSE;
    const qmath::Point corner = qsymbol::CentredOver(visible ? ToRect(around) : area, size, area);
    SetWindowPos(dialog, nullptr, corner.x, corner.y, size.width, size.height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Arrangement::PlaceControls(HWND dialog) const {
    const RECT client = ClientArea(dialog);
    const DialogPlaces places = qsymbol::PlaceControls(
        measures_, {static_cast<std::int32_t>(client.right), static_cast<std::int32_t>(client.bottom)});
    HDWP moves = BeginDeferWindowPos(static_cast<int>(std::size(kPlaces)));
    for (const Place& place : kPlaces) {
        const qmath::Rect& rect = places.*place.rect;
        const HWND control = GetDlgItem(dialog, place.control);
        // Old pixels of one control would be copied over the new place of another.
        const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
        if (moves != nullptr)
            moves = DeferWindowPos(moves, control, nullptr, rect.left, rect.top, rect.right - rect.left,
                                   rect.bottom - rect.top, flags);
    }
    if (moves != nullptr)
        EndDeferWindowPos(moves);
    // The frame is transparent, so its old lines are the dialog's to erase.
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
    RedrawWindow(GetDlgItem(dialog, IDC_lbSymbole), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

SIZE Arrangement::MinimumWindow(HWND dialog) const {
    const SIZE frame = FrameOf(dialog);
    const qsymbol::DialogSize minimum = qsymbol::MinimumSize(measures_);
    return {minimum.width + frame.cx, minimum.height + frame.cy};
}

} // namespace dialog
