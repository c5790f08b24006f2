#include "com/registration.h"

#include "com/error_info.h"
#include "com/module.h"
#include "com/registry_key.h"

#include <windows.h>

#include <oleauto.h>

// The compiler's headers lack these two; the system has them since Windows Vista.
extern "C" {
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID id, WORD major, WORD minor, LCID locale, SYSKIND system);
}

namespace com {

namespace {

std::wstring GuidText(const GUID& guid) {
    wchar_t text[40];
    StringFromGUID2(guid, text, 40);
    return text;
}

HKEY Root(RegistrationScope scope) {
    return scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring ClassPath(const std::wstring& name) {
    return L"Software\\Classes\\" + name;
}

std::wstring ProgId(const ClassEntry& entry) {
    const std::u16string_view library = TheModule().Name();
    return std::wstring(library.begin(), library.end()) + L"." + entry.name;
}

void RegisterClass(HKEY root, const ClassEntry& entry) {
    const Module::Identity& identity = TheModule().GetIdentity();
    const std::wstring clsid = ClassPath(L"CLSID\\" + GuidText(*entry.clsid));
    const std::wstring progId = ProgId(entry);

    RegistryKey(root, clsid).Set(nullptr, entry.description);
    const RegistryKey server(root, clsid + L"\\InprocServer32");
    server.Set(nullptr, TheModule().Path());
    server.Set(L"ThreadingModel", L"Apartment");
    RegistryKey(root, clsid + L"\\ProgID").Set(nullptr, progId);
    RegistryKey(root, clsid + L"\\TypeLib").Set(nullptr, GuidText(*identity.typeLibrary));
    RegistryKey(root, clsid + L"\\Version")
        .Set(nullptr, std::to_wstring(identity.major) + L"." + std::to_wstring(identity.minor));
    const RegistryKey programmable(root, clsid + L"\\Programmable");

    RegistryKey(root, ClassPath(progId)).Set(nullptr, entry.description);
    RegistryKey(root, ClassPath(progId + L"\\CLSID")).Set(nullptr, GuidText(*entry.clsid));
}

} // namespace

RegistrationScope AllowedScope() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes", 0, KEY_WRITE, &key) != ERROR_SUCCESS)
        return RegistrationScope::User;
    RegCloseKey(key);
    return RegistrationScope::Machine;
}

void Register(RegistrationScope scope) {
    for (const ClassEntry& entry : TheModule().GetIdentity().classes)
        RegisterClass(Root(scope), entry);
    std::wstring path = TheModule().Path();
    std::wstring folder = TheModule().Folder();
    ITypeLib* const library = &TheModule().TypeLibrary();
    Check(scope == RegistrationScope::Machine ? RegisterTypeLib(library, path.data(), folder.data())
                                              : RegisterTypeLibForUser(library, path.data(), folder.data()));
}

void Unregister(RegistrationScope scope) {
    const Module::Identity& identity = TheModule().GetIdentity();
    for (const ClassEntry& entry : identity.classes) {
        RegistryKey::RemoveTree(Root(scope), ClassPath(L"CLSID\\" + GuidText(*entry.clsid)));
        RegistryKey::RemoveTree(Root(scope), ClassPath(ProgId(entry)));
    }
    constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
    const auto remove = scope == RegistrationScope::Machine ? UnRegisterTypeLib : UnRegisterTypeLibForUser;
    const HRESULT status =
        remove(*identity.typeLibrary, identity.major, identity.minor, identity.locale, kSystem);
    // The system has several answers for a library that was not registered: what counts is that it is gone.
    if (FAILED(status) &&
        RegistryKey::Exists(Root(scope), ClassPath(L"TypeLib\\" + GuidText(*identity.typeLibrary))))
        Check(status);
}

} // namespace com
