#include "com/class_factory.h"

#include "com/com_ptr.h"
#include "com/module.h"
#include "com/unknown_object.h"

#include <new>

namespace com {

namespace {

class ClassFactory final : public UnknownObject<IClassFactory> {
public:
    explicit ClassFactory(const ClassEntry& entry) : entry_(entry) {}

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
    const ClassEntry& entry_;
};

} // namespace

HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** object) {
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    for (const ClassEntry& entry : TheModule().Classes()) {
        if (clsid != *entry.clsid)
            continue;
        const auto factory = ComPtr<IClassFactory>::Attach(new (std::nothrow) ClassFactory(entry));
        return factory ? factory->QueryInterface(iid, object) : E_OUTOFMEMORY;
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

} // namespace com
