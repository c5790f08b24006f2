#pragma once

#include "com/module.h"

#include <oaidl.h>

#include <atomic>

namespace com {

/// An object with one interface beside IUnknown: identity, references, the module's lock, and that it answers
/// for its error info.
template <class Interface>
class UnknownObject : public Interface, public ISupportErrorInfo {
public:
    UnknownObject() { TheModule().Lock(); }
    UnknownObject(const UnknownObject&) = delete;
    UnknownObject& operator=(const UnknownObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr)
            return E_POINTER;
        *object = nullptr;
        if (iid == IID_IUnknown || iid == __uuidof(Interface))
            *object = static_cast<Interface*>(this);
        else if (iid == IID_ISupportErrorInfo)
            *object = static_cast<ISupportErrorInfo*>(this);
        else
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == __uuidof(Interface) ? S_OK : S_FALSE;
    }

protected:
    virtual ~UnknownObject() { TheModule().Unlock(); }

private:
    std::atomic<ULONG> references_ = 1;
};

} // namespace com
