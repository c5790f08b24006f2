#include "com/registry_key.h"

#include "com/error_info.h"

namespace com {

namespace {

void CheckRegistry(LSTATUS status) {
    Check(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)));
}

bool IsAbsence(LSTATUS status) {
    return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND;
}

/// Opens an existing key; nullptr when there is none.
HKEY Open(RegistryPart part, const std::wstring& path, REGSAM access) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(part.root, path.c_str(), 0, access | part.view, &key);
    if (IsAbsence(status))
        return nullptr;
    CheckRegistry(status);
    return key;
}

} // namespace

RegistryKey::RegistryKey(RegistryPart part, const std::wstring& path) {
    CheckRegistry(RegCreateKeyExW(part.root, path.c_str(), 0, nullptr, 0, KEY_WRITE | part.view, nullptr,
                                  &key_, nullptr));
}

void RegistryKey::Set(const wchar_t* name, const std::wstring& text) const {
    CheckRegistry(RegSetValueExW(key_, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                                 static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
}

bool RegistryKey::Exists(RegistryPart part, const std::wstring& path) {
    const HKEY key = Open(part, path, KEY_READ);
    if (key == nullptr)
        return false;
    RegCloseKey(key);
    return true;
}

bool RegistryKey::HasSubkeys(RegistryPart part, const std::wstring& path) {
    const HKEY key = Open(part, path, KEY_READ);
    if (key == nullptr)
        return false;
    DWORD count = 0;
    const LSTATUS status = RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr,
                                            nullptr, nullptr, nullptr, nullptr);
    RegCloseKey(key);
    CheckRegistry(status);
    return count > 0;
}

void RegistryKey::RemoveTree(RegistryPart part, const std::wstring& path) {
    // A view is chosen where a key is opened, so the parent is opened by itself.
    const std::size_t end = path.rfind(L'\\');
    const HKEY parent = Open(part, path.substr(0, end), KEY_READ);
    if (parent == nullptr)
        return;
    const LSTATUS status = RegDeleteTreeW(parent, path.c_str() + end + 1);
    RegCloseKey(parent);
    if (!IsAbsence(status))
        CheckRegistry(status);
}

void RegistryKey::RemoveWhenEmpty(RegistryPart part, const std::wstring& path) {
    if (!HasSubkeys(part, path))
        RemoveTree(part, path);
}

} // namespace com
