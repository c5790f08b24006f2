#pragma once

#include "support/ref.h"

#include <oaidl.h>

namespace support {

/// What objects of a host's own making share: identity and life. They are called by their vtable only.
template <class Interface>
class ForeignObject : public Interface {
public:
    ForeignObject() = default;
    ForeignObject(const ForeignObject&) = delete;
    ForeignObject& operator=(const ForeignObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(Interface);
        *object = known ? this : nullptr;
        if (!known)
            return Unknown();
        this->AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

protected:
    virtual ~ForeignObject() = default;

    /// The answer to the question for an interface that the object does not have.
    virtual HRESULT Unknown() { return E_NOINTERFACE; }

private:
    ULONG references_ = 1;
};

} // namespace support
