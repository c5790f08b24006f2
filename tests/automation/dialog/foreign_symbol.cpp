#include "dialog/foreign_symbol.h"

#include "support/bstr.h"

#include <oleauto.h>

namespace dialog {

STDMETHODIMP ForeignSymbol::QueryInterface(REFIID id, void** object) {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(_CSymbol);
    *object = known ? this : nullptr;
    if (known)
        AddRef();
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) ForeignSymbol::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP ForeignSymbol::get_Name(BSTR* result) {
    *result = SysAllocStringLen(name_.data(), static_cast<UINT>(name_.size()));
    return Done("Name");
}

STDMETHODIMP ForeignSymbol::get_Width(LONG* result) {
    *result = width_;
    return Done("Width");
}

STDMETHODIMP ForeignSymbol::get_Height(LONG* result) {
    *result = height_;
    return Done("Height");
}

STDMETHODIMP ForeignSymbol::Draw2PBox(IDispatch* box) {
    const support::Ref<ForeignSymbol> alive(this);
    ++draws_;
    if (const auto action = draw_)
        action(box);
    return Done("Draw2PBox");
}

HRESULT ForeignSymbol::Done(const std::string& member) const {
    if (member != failing_)
        return S_OK;
    support::Ref<ICreateErrorInfo> info;
    CreateErrorInfo(info.Put());
    info->SetSource(support::Bstr(failure_.source));
    info->SetDescription(support::Bstr(failure_.description));
    SetErrorInfo(0, info.As<IErrorInfo>().Get());
    return failure_.status;
}

} // namespace dialog
