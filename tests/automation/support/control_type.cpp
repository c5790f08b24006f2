#include "support/control_type.h"

namespace support {

Ref<ITypeInfo> MakeControlType(const std::wstring& name) {
    // The library lives in memory only: it is never saved under its file name.
    Ref<ICreateTypeLib2> library;
    Ref<ICreateTypeInfo> type;
    std::wstring typeName = name;
    if (FAILED(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, L"controls.tlb", library.Put())) ||
        FAILED(library->CreateTypeInfo(typeName.data(), TKIND_DISPATCH, type.Put())))
        return {};
    GUID id{};
    CoCreateGuid(&id);
    type->SetGuid(id);
    type->LayOut();
    return type.As<ITypeInfo>();
}

} // namespace support
