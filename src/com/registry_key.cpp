#include "com/registry_key.h"

#include "com/error_info.h"

#include <memory>
#include <type_traits>

namespace com {

namespace {

void CheckRegistry(LSTATUS status) {
    Check(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)));
}

bool IsAbsence(LSTATUS status) {
    return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND;
}

struct KeyCloser {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using OpenKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

/// Opens an existing key for reading; nullptr when there is none.
OpenKey Open(RegistryPart part, const std::wstring& path) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(part.root, path.c_str(), 0, KEY_READ | part.view, &key);
    if (IsAbsence(status))
        return nullptr;
    CheckRegistry(status);
    return OpenKey(key);
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
    return Open(part, path) != nullptr;
}

bool RegistryKey::HasSubkeys(RegistryPart part, const std::wstring& path) {
    const OpenKey key = Open(part, path);
    if (key == nullptr)
        return false;
    DWORD count = 0;
    CheckRegistry(RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr,
                                   nullptr, nullptr, nullptr, nullptr));
    return count > 0;
}

void RegistryKey::RemoveTree(RegistryPart part, const std::wstring& path) {
    // A view is chosen where a key is opened, so the parent is opened by itself.
    const std::size_t end = path.rfind(L'\\');
    const OpenKey parent = Open(part, path.substr(0, end));
    if (parent == nullptr)
        return;
    const LSTATUS status = RegDeleteTreeW(parent.get(), path.c_str() + end + 1);
    if (!IsAbsence(status))
        CheckRegistry(status);
}

void RegistryKey::RemoveWhenEmpty(RegistryPart part, const std::wstring& path) {
    if (!HasSubkeys(part, path))
        RemoveTree(part, path);
}

} // namespace com
