#pragma once

#include "com/module.h"

#include <atomic>

namespace com {

/// An object with one interface beside IUnknown: identity, references and the module's lock.
template <class Interface>
class UnknownObject : public Interface {
public:
    UnknownObject() { TheModule().Lock(); }
    UnknownObject(const UnknownObject&) = delete;
    UnknownObject& operator=(const UnknownObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr)
            return E_POINTER;
        *object = nullptr;
        if (iid != IID_IUnknown && iid != __uuidof(Interface))
            return E_NOINTERFACE;
        *object = static_cast<Interface*>(this);
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

protected:
    virtual ~UnknownObject() { TheModule().Unlock(); }

private:
    std::atomic<ULONG> references_ = 1;
};

} // namespace com
