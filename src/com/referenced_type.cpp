#include "com/referenced_type.h"

#include "com/error_info.h"
#include "com/guid_text.h"
#include "com/module.h"
#include "com/registry_key.h"

#include <algorithm>
#include <span>
#include <string>

namespace com {

namespace {

/// The resource id of the manifest that names the sibling DLL and its type library.
constexpr WORD kSiblingManifest = 3;

/// While it lives, this thread finds the type library of the DLL beside this one as if it were registered.
class SiblingContext {
public:
    SiblingContext() {
        // The manifest's file names are taken relative to this folder.
        const std::wstring path = TheModule().Path();
        const std::wstring folder = TheModule().Folder();
        ACTCTXW description{};
        description.cbSize = sizeof description;
        description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
        description.lpSource = path.c_str();
        description.lpAssemblyDirectory = folder.c_str();
        description.lpResourceName = MAKEINTRESOURCEW(kSiblingManifest);
        context_ = CreateActCtxW(&description);
        active_ = context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie_) != FALSE;
    }
    SiblingContext(const SiblingContext&) = delete;
    SiblingContext& operator=(const SiblingContext&) = delete;
    ~SiblingContext() {
        if (active_)
            DeactivateActCtx(0, cookie_);
        if (context_ != INVALID_HANDLE_VALUE)
            ReleaseActCtx(context_);
    }

private:
    HANDLE context_ = INVALID_HANDLE_VALUE;
    ULONG_PTR cookie_ = 0;
    bool active_ = false;
};

/// A description does not tell which library its types come from, so this is the first one that is not there.
const Sibling& MissingSibling() {
    const std::span<const Sibling> siblings = TheModule().Siblings();
    const auto isThere = [](const Sibling& sibling) {
        const std::wstring path =
            TheModule().Folder() + std::wstring(sibling.file.begin(), sibling.file.end());
        return RegistryKey::Exists({HKEY_CLASSES_ROOT}, L"CLSID\\" + GuidText(*sibling.anyClass)) ||
               GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    };
    const auto missing = std::find_if_not(siblings.begin(), siblings.end(), isThere);
    return missing != siblings.end() ? *missing : siblings.front();
}

} // namespace

ComPtr<ITypeInfo> ReferencedType(ITypeInfo* info, HREFTYPE reference) {
    ComPtr<ITypeInfo> target;
    HRESULT status = info->GetRefTypeInfo(reference, target.Put());
    if (SUCCEEDED(status))
        return target;
    {
        const SiblingContext beside;
        status = info->GetRefTypeInfo(reference, target.Put());
    }
    if (FAILED(status))
        ThrowMissing(MissingSibling(), status);
    return target;
}

} // namespace com
