#pragma once

#include <windows.h>

#include <string>

namespace com {

/// A root of the registry as programs of one bitness see it.
struct RegistryPart {
    HKEY root;
    REGSAM view = 0; ///< KEY_WOW64_64KEY or KEY_WOW64_32KEY; 0 is the view of this process
};

/// Owner of an open registry key. Failures are thrown as errors with the system's status.
class RegistryKey {
public:
    /// Creates or opens the key for writing.
    RegistryKey(RegistryPart part, const std::wstring& path);
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey() { RegCloseKey(key_); }

    /// Sets a text value; nullptr names the key's default value.
    void Set(const wchar_t* name, const std::wstring& text) const;

    static bool Exists(RegistryPart part, const std::wstring& path);
    /// True when there is a key below it; false also for a key that is not there.
    static bool HasSubkeys(RegistryPart part, const std::wstring& path);

    /// Removes the key with everything below it; absence is no failure.
    static void RemoveTree(RegistryPart part, const std::wstring& path);
    /// Removes the key unless something stands below it.
    static void RemoveWhenEmpty(RegistryPart part, const std::wstring& path);

private:
    HKEY key_ = nullptr;
};

} // namespace com
