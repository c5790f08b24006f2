#include "com/server.h"

#include "com/class_factory.h"
#include "com/error_info.h"
#include "com/registration.h"

#include <cwchar>

namespace com {

BOOL ServerMain(HINSTANCE instance, DWORD reason, void* reserved, const Module::Identity& identity) {
    if (reason == DLL_PROCESS_ATTACH) {
        // The ends of threads stay announced: the run-time frees what a thread had of its own.
        TheModule().Start(instance, identity);
    } else if (reason == DLL_PROCESS_DETACH && reserved == nullptr) {
        TheModule().Stop();
    }
    return TRUE;
}

} // namespace com

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
    return com::GetClassObject(clsid, iid, object);
}

STDAPI DllCanUnloadNow() {
    return com::TheModule().CanUnload() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return com::Guard(IID_IUnknown, [] { com::Register(com::AllowedScope()); });
}

STDAPI DllUnregisterServer() {
    // One that cannot be removed must not keep the other.
    const auto remove = [](com::RegistrationScope scope) {
        return com::Guard(IID_IUnknown, [&] { com::Unregister(scope); });
    };
    const HRESULT user = remove(com::RegistrationScope::User);
    const HRESULT machine = remove(com::RegistrationScope::Machine);
    return FAILED(user) ? user : machine;
}

/// regsvr32 /n /i:user registers for the user alone, also from an elevated process.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
    if (commandLine == nullptr || _wcsicmp(commandLine, L"user") != 0)
        return install != FALSE ? DllRegisterServer() : DllUnregisterServer();
    return com::Guard(IID_IUnknown, [&] {
        if (install != FALSE)
            com::Register(com::RegistrationScope::User);
        else
            com::Unregister(com::RegistrationScope::User);
    });
}
