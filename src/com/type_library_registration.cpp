#include "com/type_library_registration.h"

#include "com/guid_text.h"
#include "com/registry_key.h"
#include "com/type_library.h"

#include <cwchar>

namespace com {

namespace {

constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr const wchar_t* kOtherPlatform = sizeof(void*) == 8 ? L"win32" : L"win64";
constexpr REGSAM kViews[] = {KEY_WOW64_64KEY, KEY_WOW64_32KEY};
/// The system's marshaller for automation interfaces, which reads the type library.
constexpr const wchar_t* kMarshaller = L"{00020424-0000-0000-C000-000000000046}";

std::wstring Hex(unsigned long value) {
    wchar_t text[16];
    swprintf(text, 16, L"%lx", value);
    return text;
}

} // namespace

TypeLibraryRegistration::TypeLibraryRegistration(HKEY root, ITypeLib& library)
    : root_(root), library_(library) {
    const LibraryAttributes attributes = AttributesOf(library);
    id_ = GuidText(attributes.id);
    version_ = Hex(attributes.major) + L"." + Hex(attributes.minor);
    libraryKey_ = L"Software\\Classes\\TypeLib\\" + id_;
    versionKey_ = libraryKey_ + L"\\" + version_;
    locales_[0] = versionKey_ + L"\\0";
    locales_[1] = versionKey_ + L"\\" + Hex(attributes.locale);
}

void TypeLibraryRegistration::Enter(const std::wstring& path, const std::wstring& folder) const {
    const LibraryAttributes attributes = AttributesOf(library_);
    RegistryKey({root_}, versionKey_).Set(nullptr, attributes.help);
    RegistryKey({root_}, versionKey_ + L"\\FLAGS").Set(nullptr, std::to_wstring(attributes.flags));
    RegistryKey({root_}, versionKey_ + L"\\HELPDIR").Set(nullptr, folder);
    for (const std::wstring& locale : locales_)
        RegistryKey({root_}, locale + L"\\" + kPlatform).Set(nullptr, path);
    for (const AutomationInterface& entry : InterfacesOf(library_)) {
        for (const REGSAM view : kViews)
            EnterInterface(view, entry.id, entry.name);
    }
}

void TypeLibraryRegistration::EnterInterface(REGSAM view, const GUID& id, const std::wstring& name) const {
    const std::wstring key = L"Software\\Classes\\Interface\\" + GuidText(id);
    RegistryKey({root_, view}, key).Set(nullptr, name);
    RegistryKey({root_, view}, key + L"\\ProxyStubClsid32").Set(nullptr, kMarshaller);
    const RegistryKey library({root_, view}, key + L"\\TypeLib");
    library.Set(nullptr, id_);
    library.Set(L"Version", version_);
}

void TypeLibraryRegistration::Remove() const {
    bool otherPlatform = false;
    for (const std::wstring& locale : locales_) {
        RegistryKey::RemoveTree({root_}, locale + L"\\" + kPlatform);
        RegistryKey::RemoveWhenEmpty({root_}, locale);
        otherPlatform = otherPlatform || RegistryKey::Exists({root_}, locale + L"\\" + kOtherPlatform);
    }
    if (otherPlatform)
        return;
    RegistryKey::RemoveTree({root_}, versionKey_);
    RegistryKey::RemoveWhenEmpty({root_}, libraryKey_);
    for (const AutomationInterface& entry : InterfacesOf(library_)) {
        for (const REGSAM view : kViews)
            RegistryKey::RemoveTree({root_, view}, L"Software\\Classes\\Interface\\" + GuidText(entry.id));
    }
}

} // namespace com
