#include "automation/qsymbol/CSymbolColl.h"

#include "automation/qsymbol/CSymInput.h"
#include "automation/qsymbol/library.h"
#include "automation/qsymbol/name_list.h"
#include "automation/qsymbol/object_list.h"
#include "automation/qsymbol/symbol_access.h"
#include "automation/qsymbol/symbol_selection.h"
#include "com/bstr.h"
#include "qsymbol/catalog/catalog_loader.h"

#include <utility>

namespace {

std::u16string Key(std::u16string_view name) {
    return std::u16string(name) + u"$";
}

} // namespace

CSymbolColl::CSymbolColl() {
    library::EnsureResources();
}

const com::ComPtr<_CSymbol>* CSymbolColl::Find(BSTR name) const {
    return symbols_.ItemByKey(Key(com::View(name)));
}

void CSymbolColl::AppendKeyed(com::ComPtr<_CSymbol> symbol) {
    const std::u16string name = com::GetText(com::Required(symbol.Get()), &_CSymbol::get_Name);
    symbols_.Append(std::move(symbol), Key(name));
}

void CSymbolColl::Add(qsymbol::Symbol&& symbol) {
    const std::u16string key = Key(qsymbol::Name(symbol));
    symbols_.Append(com::ComPtr<_CSymbol>(CSymbol::CreateFrom(std::move(symbol)).Get()), key);
}

STDMETHODIMP CSymbolColl::get_Count(LONG* value) {
    return Return(value, [&] { return symbols_.Count(); });
}

STDMETHODIMP CSymbolColl::get_ItemByPos(LONG lPos, _CSymbol** value) {
    return Return(value, [&] { return object_list::Share(symbols_.ItemByPos(lPos)); });
}

STDMETHODIMP CSymbolColl::get_ItemByIndex(BSTR stName, _CSymbol** value) {
    return Return(value, [&] { return object_list::Share(Find(stName)); });
}

STDMETHODIMP CSymbolColl::get_NewEnum(IUnknown** value) {
    return Return(value, [&] { return object_list::NewEnum(static_cast<_CSymbolColl*>(this), symbols_); });
}

STDMETHODIMP CSymbolColl::Clear() {
    return Do([&] { symbols_.Clear(); });
}

STDMETHODIMP CSymbolColl::ItemDa(BSTR stName, VARIANT_BOOL* value) {
    return Return(value, [&] { return Find(stName) != nullptr ? VARIANT_TRUE : VARIANT_FALSE; });
}

STDMETHODIMP CSymbolColl::Append(_CSymbol* o) {
    return Do([&] {
        const com::ComPtr<_CSymbol> source(&com::Required(o));
        Add(CopyOf(*source.Get()));
    });
}

STDMETHODIMP CSymbolColl::AppendRef(_CSymbol** o) {
    return Do([&] { AppendKeyed(object_list::TakeOver(o)); });
}

STDMETHODIMP CSymbolColl::RemoveOnPos(LONG lPos) {
    return Do([&] { symbols_.RemoveByPos(lPos); });
}

STDMETHODIMP CSymbolColl::RemoveOnIndex(BSTR stName) {
    return Do([&] { symbols_.RemoveByKey(Key(com::View(stName))); });
}

STDMETHODIMP CSymbolColl::ReadListe(BSTR stFolderPath, IDispatch* collSym, VARIANT_BOOL* value) {
    return Return(value, [&] {
        const std::u16string folder = com::Text(stFolderPath); // a box may let the host change its variable
        const bool loaded =
            qsymbol::ReadListe(folder, NameListOf(collSym), *this, library::FileEnvironmentNow());
        return loaded ? VARIANT_TRUE : VARIANT_FALSE;
    });
}

STDMETHODIMP CSymbolColl::ReadKatalog(BSTR stFolderPath) {
    return Do([&] {
        const std::u16string folder = com::Text(stFolderPath);
        qsymbol::ReadKatalog(folder, *this, library::FileEnvironmentNow());
    });
}

STDMETHODIMP CSymbolColl::GetSymInput(BSTR stSymName, _CSymInput** value) {
    return Return(value, [&] {
        com::ComPtr<CSymInput> input;
        library::ReportAndSwallow(u"CSymbolColl.GetSymInput", [&] {
            // A reference for the time: a foreign symbol may call its host, and that may empty
            // this catalogue.
            if (const com::ComPtr<_CSymbol>* const found = Find(stSymName))
                input = CSymInput::CreateFor(*com::ComPtr<_CSymbol>(*found).Get());
        })();
        return input.Detach();
    });
}

STDMETHODIMP CSymbolColl::SelectSymNameDlg(BSTR stOldName, BSTR* value) {
    return Return(value, [&] {
        std::u16string name;
        library::ReportAndSwallow(u"CSymbolColl.SelectSymDlg",
                                  [&] { name = SelectSymbolName(*this, com::View(stOldName)); })();
        return com::NewBstr(name);
    });
}
