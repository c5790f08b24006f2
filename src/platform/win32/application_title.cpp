#include "platform/win32/application_title.h"

#include "platform/wide/module_path.h"
#include "platform/wide/wide_text.h"

#include <windows.h>

#include <vector>

namespace platform {

namespace {

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
    const std::wstring path = ModulePath(nullptr);
    std::wstring title = FileDescription(path);
    if (title.empty()) {
        title = path.substr(path.find_last_of(L"\\/") + 1);
        title = title.substr(0, title.rfind(L'.'));
    }
    return std::u16string(Utf16(title));
}

} // namespace platform
