#include "automation/objects/math_library.h"

#include "com/com_ptr.h"
#include "com/error_info.h"
#include "com/exclusive_lock.h"
#include "com/module.h"

#include <QMath.h>

#include <iterator>
#include <utility>

namespace math_library {

namespace {

/// In the order of Class.
const CLSID* const kClasses[] = {&__uuidof(CPt), &__uuidof(CPtList), &__uuidof(CRect), &__uuidof(CSettings),
                                 &__uuidof(CTrans)};

/// What this thread holds, in the same order. Plain pointers: threads end without notice.
thread_local IClassFactory* g_held[std::size(kClasses)] = {};

SRWLOCK g_siblingLock = SRWLOCK_INIT;
HMODULE g_sibling = nullptr; ///< the QMath.dll beside this DLL, once it was needed

template <class Function>
Function* Entry(HMODULE module, const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

using GetClassObject = HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT STDAPICALLTYPE();

std::wstring SiblingPath() {
    const std::u16string_view name = com::TheModule().Siblings().front().file;
    return com::TheModule().Folder() + std::wstring(name.begin(), name.end());
}

/// The class object of the DLL beside this one; empty without such a DLL.
com::ComPtr<IClassFactory> SiblingClassObject(REFCLSID clsid) {
    const com::ExclusiveLock lock(g_siblingLock);
    if (g_sibling == nullptr)
        g_sibling = LoadLibraryW(SiblingPath().c_str());
    com::ComPtr<IClassFactory> factory;
    if (auto* const get =
            g_sibling == nullptr ? nullptr : Entry<GetClassObject>(g_sibling, "DllGetClassObject"))
        com::Check(get(clsid, IID_IClassFactory, factory.PutVoid()));
    return factory;
}

com::ComPtr<IClassFactory> Find(REFCLSID clsid) {
    com::ComPtr<IClassFactory> factory;
    const HRESULT status =
        CoGetClassObject(clsid, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.PutVoid());
    if (FAILED(status))
        factory = SiblingClassObject(clsid);
    if (!factory)
        com::ThrowMissing(com::TheModule().Siblings().front(), status);
    return factory;
}

} // namespace

IClassFactory& ClassObject(Class wanted) {
    const auto index = static_cast<std::size_t>(wanted);
    IClassFactory*& held = g_held[index];
    if (held == nullptr) {
        com::ComPtr<IClassFactory> found = Find(*kClasses[index]);
        if (held == nullptr) // the system may have let another call of this thread in
            held = found.Detach();
    }
    return *held;
}

void GiveUp() noexcept {
    for (IClassFactory*& held : g_held)
        if (IClassFactory* const factory = std::exchange(held, nullptr))
            factory->Release();
}

bool Unload() noexcept {
    const com::ExclusiveLock lock(g_siblingLock);
    if (g_sibling == nullptr)
        return true;
    auto* const canUnload = Entry<CanUnloadNow>(g_sibling, "DllCanUnloadNow");
    if (canUnload == nullptr || canUnload() != S_OK)
        return false;
    FreeLibrary(std::exchange(g_sibling, nullptr));
    return true;
}

} // namespace math_library
