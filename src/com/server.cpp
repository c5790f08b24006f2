#include "com/server.h"

#include "com/class_factory.h"
#include "com/error_info.h"
#include "com/registration.h"

#include <cwchar>

namespace com {

BOOL ServerMain(HINSTANCE instance, DWORD reason, void* reserved, const Module::Identity& identity) {
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(instance);
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
    return com::Guard(IID_IUnknown, [] {
        com::Unregister(com::RegistrationScope::User);
        if (com::AllowedScope() == com::RegistrationScope::Machine)
            com::Unregister(com::RegistrationScope::Machine);
    });
}

/// regsvr32 /n /i:user registers for the user alone, also from an elevated process.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
    return com::Guard(IID_IUnknown, [&] {
        const bool user = commandLine != nullptr && _wcsicmp(commandLine, L"user") == 0;
        const com::RegistrationScope scope = user ? com::RegistrationScope::User : com::AllowedScope();
        if (install != FALSE)
            com::Register(scope);
        else
            com::Unregister(scope);
    });
}
