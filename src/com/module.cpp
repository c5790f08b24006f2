#include "com/module.h"

#include "com/error_info.h"

namespace com {

Module& TheModule() {
    static Module module;
    return module;
}

void Module::Start(HINSTANCE instance, const Identity& identity) {
    instance_ = instance;
    identity_ = identity;
}

void Module::Stop() {
    typeLibrary_.Reset();
}

std::wstring Module::Path() const {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(instance_, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0)
            return {};
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::wstring Module::Folder() const {
    const std::wstring path = Path();
    return path.substr(0, path.rfind(L'\\') + 1);
}

ITypeLib& Module::TypeLibrary() {
    if (!typeLibrary_)
        Check(LoadTypeLibEx(Path().c_str(), REGKIND_NONE, typeLibrary_.Put()));
    return *typeLibrary_.Get();
}

} // namespace com
