#include "support/registry.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace support {

namespace {

void Collect(HKEY root, const std::wstring& rootName, const std::wstring& path,
             std::vector<std::wstring>& keys) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return;
    wchar_t name[256];
    for (DWORD i = 0;; ++i) {
        DWORD length = 256;
        if (RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            break;
        keys.push_back(rootName + L'\\' + path + L'\\' + name);
    }
    RegCloseKey(key);
}

} // namespace

std::wstring ReadRegistry(HKEY root, const std::wstring& key, const wchar_t* name) {
    wchar_t text[1024];
    DWORD size = sizeof text;
    if (RegGetValueW(root, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return L"(none)";
    return text;
}

bool HasKey(HKEY root, const std::wstring& key, REGSAM view) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ | view, &opened) != ERROR_SUCCESS)
        return false;
    RegCloseKey(opened);
    return true;
}

void WriteRegistry(HKEY root, const std::wstring& key, const std::wstring& text, REGSAM view) {
    HKEY made = nullptr;
    ASSERT_EQ(RegCreateKeyExW(root, key.c_str(), 0, nullptr, 0, KEY_WRITE | view, nullptr, &made, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExW(made, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                             static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
    RegCloseKey(made);
}

void RemoveRegistry(HKEY root, const std::wstring& key, REGSAM view) {
    const std::size_t end = key.rfind(L'\\');
    HKEY parent = nullptr;
    if (RegOpenKeyExW(root, key.substr(0, end).c_str(), 0, KEY_READ | view, &parent) != ERROR_SUCCESS)
        return;
    RegDeleteTreeW(parent, key.c_str() + end + 1);
    RegCloseKey(parent);
}

bool HasTwoViews(HKEY root) {
    const std::wstring probe = L"Software\\Classes\\CLSID\\{00000000-0000-0000-0000-000000000001}";
    WriteRegistry(root, probe, L"probe", KEY_WOW64_32KEY);
    const bool apart = !HasKey(root, probe, KEY_WOW64_64KEY);
    RemoveRegistry(root, probe, KEY_WOW64_32KEY);
    return apart;
}

std::vector<std::wstring> ClassKeys() {
    std::vector<std::wstring> keys;
    for (const std::wstring path : {L"Software\\Classes", L"Software\\Classes\\Wow6432Node"}) {
        for (const wchar_t* const folder : {L"", L"\\CLSID", L"\\Interface", L"\\TypeLib"}) {
            Collect(HKEY_LOCAL_MACHINE, L"machine", path + folder, keys);
            Collect(HKEY_CURRENT_USER, L"user", path + folder, keys);
        }
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

} // namespace support
