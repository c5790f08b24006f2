#include "platform/win32/resource_library.h"

#include "platform/wide/module_path.h"

namespace platform {

namespace {

HMODULE LoadAsData(const std::wstring& path) {
    return LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
}

} // namespace

void ResourceLibrary::OpenResourceFile(const std::wstring& folder, const wchar_t* fileName) {
    // Full paths only: the search path could hold somebody else's library.
    library_ = LoadAsData(folder + fileName);
    if (library_ == nullptr)
        library_ = LoadAsData(ModuleFolder(nullptr) + fileName);
}

std::u16string ResourceLibrary::LoadResString(std::int32_t id) const {
    if (library_ == nullptr || id < 0)
        return {};
    const wchar_t* text = nullptr;
    const int length = LoadStringW(library_, static_cast<UINT>(id), reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? std::u16string(text, text + length) : std::u16string();
}

} // namespace platform
