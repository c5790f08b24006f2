#pragma once

#include "automation/qsymbol/CSymbol.h"
#include "com/dual_object.h"
#include "qsymbol/catalog/catalog_sink.h"
#include "qsymbol/model/keyed_list.h"

#include <QSymbol.h>

/// Public class CSymbolColl: the symbol catalogue, keyed by symbol name.
class CSymbolColl final : public com::DualObject<CSymbolColl, _CSymbolColl>, private qsymbol::CatalogSink {
public:
    CSymbolColl();

    STDMETHODIMP get_Count(LONG* value) override;
    STDMETHODIMP get_ItemByPos(LONG lPos, _CSymbol** value) override;
    STDMETHODIMP get_ItemByIndex(BSTR stName, _CSymbol** value) override;
    STDMETHODIMP get_NewEnum(IUnknown** value) override;
    STDMETHODIMP Clear() override;
    STDMETHODIMP ItemDa(BSTR stName, VARIANT_BOOL* value) override;
    STDMETHODIMP Append(_CSymbol* o) override;
    STDMETHODIMP AppendRef(_CSymbol** o) override;
    STDMETHODIMP RemoveOnPos(LONG lPos) override;
    STDMETHODIMP RemoveOnIndex(BSTR stName) override;
    STDMETHODIMP ReadListe(BSTR stFolderPath, IDispatch* collSym, VARIANT_BOOL* value) override;
    STDMETHODIMP ReadKatalog(BSTR stFolderPath) override;
    STDMETHODIMP GetSymInput(BSTR stSymName, _CSymInput** value) override;
    STDMETHODIMP SelectSymNameDlg(BSTR stOldName, BSTR* value) override;

private:
    void Add(qsymbol::Symbol&& symbol) override;
    void AppendKeyed(com::ComPtr<_CSymbol> symbol);
    const com::ComPtr<_CSymbol>* Find(BSTR name) const;

    qsymbol::KeyedList<com::ComPtr<_CSymbol>> symbols_;
};
