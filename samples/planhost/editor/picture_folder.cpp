#include "picture_folder.h"

#include <windows.h>

namespace fs = std::filesystem;

namespace {

constexpr wchar_t kSeparator = L'+';

bool CanBePassed(const std::wstring& text) {
    return text.find(kSeparator) == std::wstring::npos;
}

std::wstring ShortName(const std::wstring& folder) {
    wchar_t name[MAX_PATH];
    const DWORD length = GetShortPathNameW(folder.c_str(), name, MAX_PATH);
    return length < MAX_PATH ? std::wstring(name, length) : std::wstring();
}

} // namespace

std::wstring PictureFolder(const fs::path& plan) {
    const std::wstring folder = plan.empty() ? fs::current_path().wstring() : plan.parent_path().wstring();
    if (CanBePassed(folder))
        return folder;
    if (const std::wstring name = ShortName(folder); !name.empty() && CanBePassed(name))
        return name;
    return (fs::temp_directory_path() / L"").parent_path().wstring(); // without a backslash at its end
}

std::wstring DialogRequest(const std::wstring& name, const std::wstring& pictureFolder) {
    return (CanBePassed(name) ? name : std::wstring()) + kSeparator + pictureFolder;
}
