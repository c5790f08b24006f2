#pragma once

#include "support/failure.h"
#include "support/picture_box.h"

#include <QMath.h>

namespace support {

/// A transformation of the host's own: moves by (100, 200), lengths and fonts as they are. It can be told to
/// fail. It lives on the test's stack.
class HostTrans final : public _CTrans {
public:
    HostTrans() = default;
    HostTrans(const HostTrans&) = delete;
    HostTrans& operator=(const HostTrans&) = delete;
    virtual ~HostTrans() { EXPECT_EQ(references_, 0U) << "the transformation is still held"; }

    /// From now on WorldToScreen fails like this.
    void Fail(const HostFailure& failure) { failure_ = failure; }
    int Calls() const { return calls_; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override { return --references_; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    STDMETHODIMP SetScale(double) override { return S_OK; }
    STDMETHODIMP SetOffsetX(LONG) override { return S_OK; }
    STDMETHODIMP SetOffsetY(LONG) override { return S_OK; }
    STDMETHODIMP WorldToScreen(LONG* x, LONG* y) override;
    STDMETHODIMP PtWorldToScreen(_CPt** pt) override;
    STDMETHODIMP LengthToScreen(LONG*) override { return S_OK; }
    STDMETHODIMP FontSizeToScreen(double, SHORT size, LONG* result) override {
        *result = size;
        return S_OK;
    }
    STDMETHODIMP PtScreenToWorld(_CPt**) override { return S_OK; }
    STDMETHODIMP get_Scale(double* result) override {
        *result = 1;
        return S_OK;
    }
    STDMETHODIMP get_OffsetX(LONG* result) override {
        *result = -100;
        return S_OK;
    }
    STDMETHODIMP get_OffsetY(LONG* result) override {
        *result = -200;
        return S_OK;
    }

private:
    std::optional<HostFailure> failure_;
    ULONG references_ = 0;
    int calls_ = 0;
};

} // namespace support
