#include "com/registry_key.h"

#include "com/error_info.h"

namespace com {

namespace {

void CheckRegistry(LSTATUS status) {
    Check(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)));
}

} // namespace

RegistryKey::RegistryKey(HKEY parent, const std::wstring& path) {
    CheckRegistry(RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key_, nullptr));
}

void RegistryKey::Set(const wchar_t* name, const std::wstring& text) const {
    CheckRegistry(RegSetValueExW(key_, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                                 static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
}

bool RegistryKey::Exists(HKEY parent, const std::wstring& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

void RegistryKey::RemoveTree(HKEY parent, const std::wstring& path) {
    const LSTATUS status = RegDeleteTreeW(parent, path.c_str());
    if (status != ERROR_FILE_NOT_FOUND && status != ERROR_PATH_NOT_FOUND)
        CheckRegistry(status);
}

} // namespace com
