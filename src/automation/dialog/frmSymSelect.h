#pragma once

#include "automation/dialog/SymPict.h"
#include "automation/dialog/arrangement.h"
#include "automation/dialog/export_display.h"
#include "automation/dialog/lbSymbole.h"
#include "automation/dialog/services.h"

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
    void Form_Unload();
    void SetSymColl(std::u16string_view oldName);
    /// True unless an error was shown.
    bool lbSymbole_Click();
    void pbOk_Click();
    void pbCancel_Click();
    void pbJPG_Click();

    /// Shows an entry of the list, -1 for none. False when meanwhile another one was shown.
    bool ShowEntry(int entry);
    void ShowSizes(_CSymbol& symbol);
    void EnableOk(bool enable);
    void DrawSymbol();
    void NewPicture();
    void Paint(const DRAWITEMSTRUCT& item) const;
    void Measure();
    void SetResolution(const RECT& place);
    void ExportAll(const ExportDisplay& display);
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

    HWND window_ = nullptr;
    /// Those that change with every entry that is shown.
    struct {
        HWND SymPict;
        HWND txBreite;
        HWND txHoehe;
        HWND pbOk;
    } controls_{};
    Arrangement arrangement_;
    lbSymbole list_;
    com::ComPtr<SymPict> pict_;
    com::ComPtr<_CSymbol> shown_;
    unsigned shows_ = 0;        ///< counts entries shown, to notice one inside another
    bool pictureWaits_ = false; ///< the size changed while something was drawn
    bool exporting_ = false;
    bool stop_ = false;
    bool ended_ = false;
};

} // namespace dialog
