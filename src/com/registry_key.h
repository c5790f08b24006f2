#pragma once

#include <windows.h>

#include <string>

namespace com {

/// Owner of an open registry key. Failures are thrown as errors with the system's status.
class RegistryKey {
public:
    /// Creates or opens the key for writing.
    RegistryKey(HKEY parent, const std::wstring& path);
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey() { RegCloseKey(key_); }

    /// Sets a text value; nullptr names the key's default value.
    void Set(const wchar_t* name, const std::wstring& text) const;

    static bool Exists(HKEY parent, const std::wstring& path);

    /// Removes the key with everything below it; absence is no failure.
    static void RemoveTree(HKEY parent, const std::wstring& path);

private:
    HKEY key_ = nullptr;
};

} // namespace com
