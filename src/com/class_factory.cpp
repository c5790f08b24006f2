#include "com/class_factory.h"

#include "com/com_ptr.h"
#include "com/module.h"

#include <atomic>
#include <new>

namespace com {

namespace {

class ClassFactory final : public IClassFactory {
public:
    explicit ClassFactory(const ClassEntry& entry) : entry_(entry) { TheModule().Lock(); }
    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr)
            return E_POINTER;
        *object = nullptr;
        if (iid != IID_IUnknown && iid != IID_IClassFactory)
            return E_NOINTERFACE;
        *object = static_cast<IClassFactory*>(this);
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
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        if (object == nullptr)
            return E_POINTER;
        *object = nullptr;
        return outer != nullptr ? CLASS_E_NOAGGREGATION : entry_.create(iid, object);
    }
    STDMETHODIMP LockServer(BOOL lock) override {
        if (lock != FALSE)
            TheModule().Lock();
        else
            TheModule().Unlock();
        return S_OK;
    }

private:
    virtual ~ClassFactory() { TheModule().Unlock(); }

    const ClassEntry& entry_;
    std::atomic<ULONG> references_ = 1;
};

} // namespace

HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** object) {
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    for (const ClassEntry& entry : TheModule().GetIdentity().classes) {
        if (clsid != *entry.clsid)
            continue;
        const auto factory = ComPtr<IClassFactory>::Attach(new (std::nothrow) ClassFactory(entry));
        return factory ? factory->QueryInterface(iid, object) : E_OUTOFMEMORY;
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

} // namespace com
