#pragma once

#include "automation/dialog/arrangement.h"
#include "automation/dialog/export_display.h"
#include "automation/dialog/lbSymbole.h"
#include "automation/dialog/services.h"
#include "automation/dialog/symbol_view.h"

#include <QSymbol.h>

#include <string>

namespace dialog {

/// The form in which the user picks a symbol of a catalogue. Handlers show their errors and go on.
class frmSymSelect {
public:
    /// `folder` is where pictures go.
    frmSymSelect(const Services& services, std::u16string folder);
    frmSymSelect(const frmSymSelect&) = delete;
    frmSymSelect& operator=(const frmSymSelect&) = delete;

    /// Shows the form over the thread's active window until the user is done; "" unless he chose a symbol.
    std::u16string ShowModal(_CSymbolColl& catalogue, std::u16string_view oldName);

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnCommand(int control, int notification);

    void Form_Load();
    void SetCaptions();
    void Form_Unload();
    void SetSymColl(std::u16string_view oldName);
    void lbSymbole_Click();
    void pbOk_Click();
    void pbCancel_Click();
    void pbJPG_Click();

    /// Shows an entry of the list, -1 for none. False when meanwhile another one was shown.
    bool ShowEntry(int entry);
    void EnableOk(bool enable);
    void Arrange();
    void Measure();
    void SetResolution(const RECT& place);
    /// saved: how many pictures are, at any time.
    void ExportAll(const ExportDisplay& display, std::size_t& saved);
    /// False when the export is to end.
    bool ShowForExport(int entry);
    void SavePicture(const std::u16string& name) const;
    bool ExportGoesOn() const { return !stop_ && !ended_ && window_ != nullptr; }
    void End();

    HWND Control(int id) const { return GetDlgItem(window_, id); }
    template <class Body>
    bool Handle(std::u16string_view source, Body&& body) noexcept;

    Services services_;
    std::u16string folder_;
    com::ComPtr<_CSymbolColl> catalogue_;
    std::u16string_view oldName_;
    std::u16string result_;
    std::u16string stopCaption_; ///< of the export button, while an export runs and it stops it

    HWND window_ = nullptr;
    Arrangement arrangement_;
    lbSymbole list_;
    SymbolView view_;
    bool exporting_ = false;
    bool stop_ = false;
    bool ended_ = false;
};

} // namespace dialog
