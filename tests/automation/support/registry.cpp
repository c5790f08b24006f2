#include "support/registry.h"

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

bool HasKey(HKEY root, const std::wstring& key) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return false;
    RegCloseKey(opened);
    return true;
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
