#include "drawing/host_trans.h"

#include "support/bstr.h"

#include <oleauto.h>

namespace drawing {

STDMETHODIMP HostTrans::QueryInterface(REFIID id, void** object) {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(_CTrans);
    *object = known ? this : nullptr;
    if (known)
        AddRef();
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) HostTrans::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

HRESULT HostTrans::Done(const std::string& operation) const {
    if (action_)
        action_();
    if (operation != failing_)
        return S_OK;
    support::Ref<ICreateErrorInfo> info;
    CreateErrorInfo(info.Put());
    info->SetSource(support::Bstr(failure_.source));
    info->SetDescription(support::Bstr(failure_.description));
    SetErrorInfo(0, info.As<IErrorInfo>().Get());
    return failure_.status;
}

} // namespace drawing
