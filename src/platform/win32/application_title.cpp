#include "platform/win32/application_title.h"

#include <windows.h>

#include <vector>

namespace platform {

namespace {

std::wstring ProgramPath() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length >= path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return path;
}

std::wstring FileDescription(const std::wstring& path) {
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(path.c_str(), &ignored);
    std::vector<BYTE> block(size);
    if (size == 0 || GetFileVersionInfoW(path.c_str(), 0, size, block.data()) == FALSE)
        return {};
    struct Translation {
        WORD language;
        WORD codePage;
    };
    Translation* translation = nullptr;
    UINT length = 0;
    if (VerQueryValueW(block.data(), L"\\VarFileInfo\\Translation", reinterpret_cast<void**>(&translation),
                       &length) == FALSE ||
        length < sizeof(Translation))
        return {};
    wchar_t key[64];
    wsprintfW(key, L"\\StringFileInfo\\%04x%04x\\FileDescription", translation->language,
              translation->codePage);
    wchar_t* text = nullptr;
    if (VerQueryValueW(block.data(), key, reinterpret_cast<void**>(&text), &length) == FALSE || length == 0)
        return {};
    return text;
}

} // namespace

std::u16string ApplicationTitle() {
    const std::wstring path = ProgramPath();
    std::wstring title = FileDescription(path);
    if (title.empty()) {
        title = path.substr(path.find_last_of(L"\\/") + 1);
        title = title.substr(0, title.rfind(L'.'));
    }
    return std::u16string(title.begin(), title.end());
}

} // namespace platform
