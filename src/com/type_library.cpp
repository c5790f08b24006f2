#include "com/type_library.h"

#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

namespace com {

LibraryAttributes AttributesOf(ITypeLib& library) {
    Bstr help;
    Check(library.GetDocumentation(MEMBERID_NIL, nullptr, help.Put(), nullptr, nullptr));
    TLIBATTR* attributes = nullptr;
    Check(library.GetLibAttr(&attributes));
    LibraryAttributes result{.id = attributes->guid,
                             .major = attributes->wMajorVerNum,
                             .minor = attributes->wMinorVerNum,
                             .locale = attributes->lcid,
                             .flags = attributes->wLibFlags,
                             .help = {}};
    library.ReleaseTLibAttr(attributes);
    if (help.Get() != nullptr)
        result.help.assign(help.Get(), SysStringLen(help.Get()));
    return result;
}

std::vector<AutomationInterface> InterfacesOf(ITypeLib& library) {
    std::vector<AutomationInterface> interfaces;
    for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
        TYPEKIND kind{};
        Check(library.GetTypeInfoType(i, &kind));
        if (kind != TKIND_DISPATCH && kind != TKIND_INTERFACE)
            continue;
        ComPtr<ITypeInfo> info;
        Check(library.GetTypeInfo(i, info.Put()));
        TYPEATTR* attributes = nullptr;
        Check(info->GetTypeAttr(&attributes));
        const GUID id = attributes->guid;
        const bool automation = (attributes->wTypeFlags & (TYPEFLAG_FDUAL | TYPEFLAG_FOLEAUTOMATION)) != 0;
        info->ReleaseTypeAttr(attributes);
        if (!automation)
            continue;
        Bstr name;
        Check(info->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr));
        interfaces.push_back({id, name.Get()});
    }
    return interfaces;
}

} // namespace com
