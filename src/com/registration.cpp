#include "com/registration.h"

#include "com/guid_text.h"
#include "com/module.h"
#include "com/registry_key.h"
#include "com/type_library.h"
#include "com/type_library_registration.h"

#include <windows.h>

namespace com {

namespace {

constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

HKEY Root(RegistrationScope scope) {
    return scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring ClassPath(const std::wstring& name) {
    return L"Software\\Classes\\" + name;
}

std::wstring ClsidPath(const ClassEntry& entry) {
    return ClassPath(L"CLSID\\" + GuidText(*entry.clsid));
}

std::wstring ProgId(const ClassEntry& entry) {
    const std::u16string_view library = TheModule().Name();
    return std::wstring(library.begin(), library.end()) + L"." + entry.name;
}

void RegisterClass(HKEY root, const ClassEntry& entry, const LibraryAttributes& library) {
    const std::wstring clsid = ClsidPath(entry);
    const std::wstring progId = ProgId(entry);

    RegistryKey({root}, clsid).Set(nullptr, entry.description);
    const RegistryKey server({root}, clsid + L"\\InprocServer32");
    server.Set(nullptr, TheModule().Path());
    server.Set(L"ThreadingModel", L"Apartment");
    RegistryKey({root}, clsid + L"\\ProgID").Set(nullptr, progId);
    RegistryKey({root}, clsid + L"\\TypeLib").Set(nullptr, GuidText(library.id));
    RegistryKey({root}, clsid + L"\\Version")
        .Set(nullptr, std::to_wstring(library.major) + L"." + std::to_wstring(library.minor));
    const RegistryKey programmable({root}, clsid + L"\\Programmable");

    RegistryKey({root}, ClassPath(progId)).Set(nullptr, entry.description);
    RegistryKey({root}, ClassPath(progId + L"\\CLSID")).Set(nullptr, GuidText(*entry.clsid));
}

void UnregisterClass(HKEY root, const ClassEntry& entry) {
    RegistryKey::RemoveTree({root}, ClsidPath(entry));
    // Classes are apart for each bitness, ProgIDs are common.
    if (!RegistryKey::Exists({root, kOtherView}, ClsidPath(entry)))
        RegistryKey::RemoveTree({root}, ClassPath(ProgId(entry)));
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
    ITypeLib& library = TheModule().TypeLibrary();
    const LibraryAttributes attributes = AttributesOf(library);
    for (const ClassEntry& entry : TheModule().Classes())
        RegisterClass(Root(scope), entry, attributes);
    TypeLibraryRegistration(Root(scope), library).Enter(TheModule().Path(), TheModule().Folder());
}

void Unregister(RegistrationScope scope) {
    for (const ClassEntry& entry : TheModule().Classes())
        UnregisterClass(Root(scope), entry);
    TypeLibraryRegistration(Root(scope), TheModule().TypeLibrary()).Remove();
}

} // namespace com
