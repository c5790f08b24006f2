#include "tools/foreign_symbol.h"

#include "support/bstr.h"
#include "support/dispatch.h"

namespace tools {

namespace {

HRESULT Throw(const support::Failure& failure) {
    support::Ref<ICreateErrorInfo> made;
    if (SUCCEEDED(CreateErrorInfo(made.Put()))) {
        made->SetSource(std::wstring(failure.source).data());
        made->SetDescription(std::wstring(failure.description).data());
        SetErrorInfo(0, made.As<IErrorInfo>().Get());
    }
    return failure.status;
}

} // namespace

STDMETHODIMP ForeignSymbol::QueryInterface(REFIID id, void** object) {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(_CSymbol);
    *object = known ? this : nullptr;
    if (known)
        AddRef();
    if (!known && refusal_ != support::Failure{})
        return Throw(refusal_);
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) ForeignSymbol::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP ForeignSymbol::get_Name(BSTR* result) {
    *result = SysAllocString(name_.c_str());
    return S_OK;
}

STDMETHODIMP ForeignSymbol::Draw(LONG lLogX, LONG lLogY, double dAngle, IDispatch* ctrl, _CTrans* Trans,
                                 double dSymPrinterFaktor, double dSymBSFaktor, LONG* lMarkColor) {
    if (failure_ != support::Failure{})
        return Throw(failure_);
    const LONG mode = support::Dispatch(ctrl).Get(L"DrawMode").value.Long();
    draws_.push_back({lLogX, lLogY, dAngle, ctrl, Trans, dSymPrinterFaktor, dSymBSFaktor, *lMarkColor, mode});
    return S_OK;
}

} // namespace tools
