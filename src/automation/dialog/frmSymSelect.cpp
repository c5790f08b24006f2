#include "automation/dialog/frmSymSelect.h"

#include "automation/dialog/control_ids.h"
#include "automation/dialog/export_display.h"
#include "automation/dialog/message_pump.h"
#include "automation/dialog/modal_owner.h"
#include "automation/dialog/system_dpi.h"
#include "automation/dialog/window_text.h"
#include "com/bstr.h"
#include "com/error_info.h"
#include "com/object_call.h"
#include "platform/win32/jpeg_file.h"
#include "qsymbol/dialog/access_keys.h"
#include "qsymbol/dialog/dialog_texts.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace dialog {

namespace {

constexpr LONG kJpegQuality = 100;
constexpr int kAttempts = 5;                // to show an entry while a symbol of the host shows others
constexpr std::size_t kManyEntries = 88888; // as wide as any number of entries that a list can hold well
constexpr UINT kDpiChanged = 0x02E0;        // WM_DPICHANGED, from Windows 8.1 on

/// Captions that the resource library may replace; control 0 is the form itself.
struct ReplaceableCaption {
    int control;
    std::int32_t string;
};
constexpr ReplaceableCaption kCaptions[] = {
    {0, 11001}, {IDC_Frame, 11002}, {IDC_Label, 11008}, {IDC_pbJPG, 11009}};
constexpr std::u16string_view kStopCaption = u"&Anhalten";

} // namespace

template <class Body>
bool frmSymSelect::Handle(std::u16string_view source, Body&& body) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        services_.report(source);
        return false;
    }
}

frmSymSelect::frmSymSelect(const Services& services, std::u16string folder)
    : services_(services), folder_(std::move(folder)), view_(services_) {}

std::u16string frmSymSelect::ShowModal(_CSymbolColl& catalogue, std::u16string_view oldName) {
    catalogue_ = com::ComPtr<_CSymbolColl>(&catalogue);
    oldName_ = oldName;
    const ModalOwner owner;
    if (DialogBoxParamW(services_.instance, MAKEINTRESOURCEW(IDD_frmSymSelect), owner.Get(), Procedure,
                        reinterpret_cast<LPARAM>(this)) == -1)
        com::ThrowSystemFailure(HRESULT_FROM_WIN32(GetLastError()));
    return result_;
}

INT_PTR CALLBACK frmSymSelect::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<frmSymSelect*>(lParam)->window_ = window;
    }
    auto* const form = reinterpret_cast<frmSymSelect*>(GetWindowLongPtrW(window, DWLP_USER));
    return form == nullptr ? FALSE : form->OnMessage(message, wParam, lParam);
}

INT_PTR frmSymSelect::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        Form_Load();
        SetSymColl(oldName_);
        return TRUE;
    case WM_COMMAND: OnCommand(LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case WM_DRAWITEM: view_.Paint(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED)
            Arrange();
        return TRUE;
    case WM_GETMINMAXINFO: {
        const SIZE minimum = arrangement_.MinimumWindow(window_);
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {minimum.cx, minimum.cy};
        return TRUE;
    }
    case kDpiChanged: SetResolution(*reinterpret_cast<const RECT*>(lParam)); return TRUE;
    case WM_DESTROY: Form_Unload(); return TRUE;
    default: return FALSE;
    }
}

void frmSymSelect::OnCommand(int control, int notification) {
    if (ended_)
        return;
    if (control == IDC_lbSymbole) {
        if (notification == LBN_SELCHANGE)
            lbSymbole_Click();
        else if (notification == LBN_DBLCLK)
            pbOk_Click();
        return;
    }
    if (notification != BN_CLICKED)
        return;
    switch (control) {
    case IDC_pbOk: pbOk_Click(); break;
    case IDC_pbCancel: pbCancel_Click(); break;
    case IDC_pbJPG: pbJPG_Click(); break;
    default: break;
    }
}

void frmSymSelect::Form_Load() {
    Handle(u"frmSymSelect.Form_Load", [&] {
        FollowResolutionItself(window_);
        SetCaptions();
        list_.Attach(Control(IDC_lbSymbole));
        view_.Attach(window_);
        Measure();
        arrangement_.PlaceWindow(window_);
        Arrange();
    });
}

/// What the resource library says comes first, also in its access keys; those of the designed captions give way.
void frmSymSelect::SetCaptions() {
    std::vector<int> controls;
    std::vector<std::u16string> captions;
    for (const auto& [control, string] : kCaptions) {
        const std::u16string text = services_.strings.LoadResString(string);
        if (control == 0 && !text.empty()) {
            SetWindowText(window_, text);
        } else if (!text.empty()) {
            controls.push_back(control);
            captions.push_back(text);
        }
    }
    constexpr int kStop = -1; // the export button, while an export runs
    for (const int control : {IDC_Frame, IDC_Label, IDC_pbJPG, kStop, IDC_pbCancel}) {
        if (std::find(controls.begin(), controls.end(), control) != controls.end())
            continue;
        controls.push_back(control);
        captions.push_back(control == kStop ? std::u16string(kStopCaption) : WindowText(Control(control)));
    }
    qsymbol::MakeAccessKeysUnique(captions);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (controls[i] == kStop)
            stopCaption_ = captions[i];
        else
            SetWindowText(Control(controls[i]), captions[i]);
    }
}

void frmSymSelect::Measure() {
    arrangement_.Prepare(window_, {WindowText(Control(IDC_pbJPG)), stopCaption_},
                         qsymbol::ProgressText(kManyEntries, kManyEntries));
}

void frmSymSelect::SetResolution(const RECT& place) {
    Handle(u"frmSymSelect.Form_Load", [&] {
        Measure();
        SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
        Arrange();
    });
}

void frmSymSelect::Form_Unload() {
    Handle(u"frmSymSelect.Form_Unload", [&] {
        view_.Clear();
        window_ = nullptr;
    });
}

void frmSymSelect::SetSymColl(std::u16string_view oldName) {
    Handle(u"frmSymSelect.SetSymColl", [&] {
        list_.Fill(*catalogue_.Get());
        if (list_.Names().empty())
            return;
        const int old = oldName.empty() ? -1 : list_.Find(oldName);
        list_.Select(old < 0 ? 0 : old);
        lbSymbole_Click();
    });
    EnableWindow(Control(IDC_pbJPG), list_.Names().empty() ? FALSE : TRUE);
}

void frmSymSelect::lbSymbole_Click() {
    Handle(u"frmSymSelect.lbSymbole_Click", [&] { ShowEntry(list_.Selected()); });
}

bool frmSymSelect::ShowEntry(int entry) {
    com::ComPtr<_CSymbol> symbol;
    if (entry >= 0) {
        const com::Bstr name(list_.Names()[static_cast<std::size_t>(entry)]);
        com::Call(*catalogue_, &_CSymbolColl::get_ItemByIndex, name.Get(), symbol.Put());
    }
    EnableOk(static_cast<bool>(symbol));
    return view_.Show(symbol);
}

void frmSymSelect::EnableOk(bool enable) {
    const HWND ok = Control(IDC_pbOk);
    if (enable == (IsWindowEnabled(ok) != FALSE))
        return;
    // A disabled control must not keep the focus: the keyboard would be dead.
    if (!enable && GetFocus() == ok)
        SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(IDC_lbSymbole)), TRUE);
    EnableWindow(ok, enable ? TRUE : FALSE);
}

void frmSymSelect::Arrange() {
    Handle(u"frmSymSelect.lbSymbole_Click", [&] {
        arrangement_.PlaceControls(window_);
        view_.FitPicture(arrangement_.PreviewMargin());
    });
}

void frmSymSelect::pbOk_Click() {
    Handle(u"frmSymSelect.pbOk_Click", [&] {
        const int entry = list_.Selected();
        if (entry < 0 || IsWindowEnabled(Control(IDC_pbOk)) == FALSE)
            return;
        result_ = list_.Names()[static_cast<std::size_t>(entry)];
        End();
    });
}

void frmSymSelect::pbCancel_Click() {
    Handle(u"frmSymSelect.pbCancel_Click", [&] {
        result_.clear();
        End();
    });
}

void frmSymSelect::End() {
    ended_ = true;
    EndDialog(window_, 0);
}

void frmSymSelect::pbJPG_Click() {
    if (exporting_) {
        stop_ = true;
        return;
    }
    exporting_ = true;
    stop_ = false;
    constexpr std::u16string_view kSource = u"CSymbolColl.SelectSymDlg";
    Handle(kSource, [&] {
        const ExportDisplay display(window_, list_.Names().size(), stopCaption_);
        std::size_t saved = 0;
        // An error is shown while the display still tells the entry.
        Handle(kSource, [&] { ExportAll(display, saved); });
        if (!ended_ && window_ != nullptr)
            display.Close(qsymbol::SavedText(saved, folder_));
    });
    exporting_ = false;
    if (!ended_ && window_ != nullptr)
        lbSymbole_Click(); // what is shown is again what is selected
}

void frmSymSelect::ExportAll(const ExportDisplay& display, std::size_t& saved) {
    const std::size_t count = list_.Names().size();
    for (std::size_t i = 0; i < count; ++i) {
        display.Tell(i + 1);
        if (!ShowForExport(static_cast<int>(i)))
            return;
        SavePicture(list_.Names()[i]);
        ++saved;
        if (!ProcessPendingMessages(window_) || !ExportGoesOn())
            return;
    }
}

bool frmSymSelect::ShowForExport(int entry) {
    bool shown = false;
    // A picture of what could not be shown helps nobody: then the export ends.
    const bool well = Handle(u"frmSymSelect.lbSymbole_Click", [&] {
        for (int attempt = 0; attempt < kAttempts && !shown && ExportGoesOn(); ++attempt)
            shown = ShowEntry(entry);
        if (!shown && ExportGoesOn())
            base::Raise(base::RunTimeError::InvalidCall);
    });
    return well && ExportGoesOn();
}

void frmSymSelect::SavePicture(const std::u16string& name) const {
    const MemoryPicture::Bitmap picture(view_.Picture());
    platform::SaveJpeg(picture.Get(), qsymbol::PicturePath(folder_, name), kJpegQuality);
}

} // namespace dialog
