#include "support/host_trans.h"

#include "support/bstr.h"

namespace support {

STDMETHODIMP HostTrans::QueryInterface(REFIID iid, void** object) {
    if (iid != IID_IUnknown && iid != IID_IDispatch && iid != __uuidof(_CTrans)) {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    *object = static_cast<_CTrans*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP HostTrans::WorldToScreen(LONG* x, LONG* y) {
    ++calls_;
    if (failure_) {
        Ref<ICreateErrorInfo> create;
        if (SUCCEEDED(CreateErrorInfo(create.Put()))) {
            create->SetSource(Bstr(failure_->source));
            create->SetDescription(Bstr(failure_->description));
            SetErrorInfo(0, create.As<IErrorInfo>().Get());
        }
        return failure_->number != 0 ? Numbered(failure_->number) : failure_->status;
    }
    *x += 100;
    *y += 200;
    return S_OK;
}

STDMETHODIMP HostTrans::PtWorldToScreen(_CPt** pt) {
    LONG x = 0;
    LONG y = 0;
    (*pt)->get_X(&x);
    (*pt)->get_Y(&y);
    const HRESULT status = WorldToScreen(&x, &y);
    (*pt)->put_X(x);
    (*pt)->put_Y(y);
    return status;
}

} // namespace support
