#include "platform/wide/module_path.h"

namespace platform {

std::wstring ModulePath(HINSTANCE module) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2); // it was cut off
    }
}

std::wstring ModuleFolder(HINSTANCE module) {
    const std::wstring path = ModulePath(module);
    return path.substr(0, path.rfind(L'\\') + 1);
}

} // namespace platform
