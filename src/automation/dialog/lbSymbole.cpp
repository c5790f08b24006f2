#include "automation/dialog/lbSymbole.h"

#include "automation/dialog/dialog_font.h"
#include "automation/dialog/painting_pause.h"
#include "com/com_ptr.h"
#include "com/error_info.h"
#include "com/object_call.h"
#include "com/variant.h"

#include <algorithm>
#include <utility>

namespace dialog {

namespace {

com::ComPtr<IEnumVARIANT> Enumerator(_CSymbolColl& catalogue) {
    const auto unknown = com::Get(catalogue, &_CSymbolColl::get_NewEnum);
    com::ComPtr<IEnumVARIANT> items = unknown.As<IEnumVARIANT>();
    com::Required(items.Get());
    return items;
}

std::u16string NameOf(const VARIANT& item) {
    com::ComPtr<_CSymbol> symbol;
    if (V_VT(&item) != VT_DISPATCH || V_DISPATCH(&item) == nullptr)
        base::Raise(base::RunTimeError::ObjectNotSet);
    com::Query(*V_DISPATCH(&item), __uuidof(_CSymbol), symbol.PutVoid());
    return com::GetText(com::Required(symbol.Get()), &_CSymbol::get_Name);
}

} // namespace

void lbSymbole::Attach(HWND list) {
    list_ = list;
    SetWindowLongPtrW(list_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    ownProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(list_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
}

/// The list box itself goes by the last letter alone.
LRESULT CALLBACK lbSymbole::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const self = reinterpret_cast<lbSymbole*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_CHAR && wParam >= L' ') {
        self->Type(static_cast<char16_t>(wParam));
        return 0;
    }
    return CallWindowProcW(self->ownProcedure_, window, message, wParam, lParam);
}

void lbSymbole::Type(char16_t letter) {
    const int entry = typed_.Add(letter, GetTickCount64(), names_, Selected());
    if (entry < 0 || entry == Selected())
        return;
    SendMessageW(list_, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    SendMessageW(GetParent(list_), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list_), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list_));
}

void lbSymbole::Clear() {
    SendMessageW(list_, LB_RESETCONTENT, 0, 0);
    names_.clear();
}

void lbSymbole::Add(std::u16string name) {
    names_.push_back(std::move(name));
    if (SendMessageW(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(names_.back().c_str())) >= 0)
        return;
    names_.pop_back();
    base::Raise(base::RunTimeError::OutOfMemory);
}

void lbSymbole::Fill(_CSymbolColl& catalogue) {
    const PaintingPause pause(list_);
    Clear();
    const com::ComPtr<IEnumVARIANT> items = Enumerator(catalogue);
    for (;;) {
        com::Variant item;
        if (com::Call(*items, &IEnumVARIANT::Next, 1U, item.Get(), nullptr) != S_OK)
            break;
        Add(NameOf(*item.Get()));
    }
    FitScrolling();
}

void lbSymbole::FitScrolling() const {
    const TextMeter meter(list_, reinterpret_cast<HFONT>(SendMessageW(list_, WM_GETFONT, 0, 0)));
    int widest = 0;
    for (const std::u16string& name : names_)
        if (static_cast<std::int64_t>(name.size()) * meter.MaximumWidth() > widest) // worth measuring
            widest = std::max(widest, meter.Width(name));
    SendMessageW(list_, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest + meter.AverageWidth()), 0);
}

int lbSymbole::Find(std::u16string_view name) const {
    const auto found =
        std::find(names_.begin(), names_.end(), name); // the list box's own search ignores case
    return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
}

void lbSymbole::Select(int entry) {
    SendMessageW(list_, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    // The neighbours on both sides are of interest.
    RECT area{};
    GetClientRect(list_, &area);
    const auto rows =
        area.bottom / std::max(static_cast<LONG>(SendMessageW(list_, LB_GETITEMHEIGHT, 0, 0)), 1L);
    SendMessageW(list_, LB_SETTOPINDEX, static_cast<WPARAM>(std::max(entry - (rows - 1) / 2, 0L)), 0);
}

int lbSymbole::Selected() const {
    const auto entry = static_cast<int>(SendMessageW(list_, LB_GETCURSEL, 0, 0));
    return entry >= 0 && static_cast<std::size_t>(entry) < names_.size() ? entry : -1;
}

} // namespace dialog
