#include "com/dispatch_table.h"

#include "com/error_info.h"
#include "com/module.h"

#include <memory>

namespace com {

namespace {

/// The value type behind pointers and names of types, and how many pointers lead to it.
void Resolve(ITypeInfo* info, const TYPEDESC& type, DispatchParameter& parameter, int& pointers) {
    if (type.vt == VT_PTR) {
        ++pointers;
        Resolve(info, *type.lptdesc, parameter, pointers);
        return;
    }
    if (type.vt == VT_INT || type.vt == VT_HRESULT) {
        parameter.type = VT_I4;
        return;
    }
    if (type.vt != VT_USERDEFINED) {
        parameter.type = type.vt;
        parameter.iid = type.vt == VT_UNKNOWN ? IID_IUnknown : IID_IDispatch;
        return;
    }
    ComPtr<ITypeInfo> target;
    Check(info->GetRefTypeInfo(type.hreftype, target.Put()));
    TYPEATTR* attributes = nullptr;
    Check(target->GetTypeAttr(&attributes));
    const auto release = [&](TYPEATTR* held) { target->ReleaseTypeAttr(held); };
    const std::unique_ptr<TYPEATTR, decltype(release)> owner(attributes, release);
    switch (attributes->typekind) {
    case TKIND_ENUM: parameter.type = VT_I4; break;
    case TKIND_ALIAS: Resolve(target.Get(), attributes->tdescAlias, parameter, pointers); break;
    default:
        // An object: its first pointer belongs to the value.
        parameter.type = VT_DISPATCH;
        parameter.iid = attributes->guid;
        --pointers;
    }
}

DispatchParameter Describe(ITypeInfo* info, const ELEMDESC& element) {
    DispatchParameter parameter;
    int pointers = 0;
    Resolve(info, element.tdesc, parameter, pointers);
    parameter.byReference = pointers > 0;
    const USHORT flags = element.paramdesc.wParamFlags;
    parameter.optional = (flags & PARAMFLAG_FOPT) != 0;
    if ((flags & PARAMFLAG_FHASDEFAULT) != 0 && element.paramdesc.pparamdescex != nullptr) {
        VARIANT value;
        VariantInit(&value);
        if (SUCCEEDED(
                VariantChangeType(&value, &element.paramdesc.pparamdescex->varDefaultValue, 0, VT_I4))) {
            parameter.hasDefault = true;
            parameter.defaultValue = V_I4(&value);
        }
    }
    return parameter;
}

DispatchMember Describe(ITypeInfo* info, const FUNCDESC& function) {
    DispatchMember member;
    member.id = function.memid;
    member.kind = function.invkind;
    member.vtableOffset = function.oVft;
    for (SHORT i = 0; i < function.cParams; ++i) {
        const ELEMDESC& element = function.lprgelemdescParam[i];
        if ((element.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0) {
            member.hasResult = true;
            member.result = Describe(info, element);
        } else {
            member.parameters.push_back(Describe(info, element));
        }
    }
    return member;
}

} // namespace

DispatchTable::DispatchTable(REFIID iid) {
    Check(TheModule().TypeLibrary().GetTypeInfoOfGuid(iid, typeInfo_.Put()));
    // The other half of a dual interface: the vtable with status codes and results.
    HREFTYPE vtableRef = 0;
    ComPtr<ITypeInfo> vtable;
    Check(typeInfo_->GetRefTypeOfImplType(static_cast<UINT>(-1), &vtableRef));
    Check(typeInfo_->GetRefTypeInfo(vtableRef, vtable.Put()));
    TYPEATTR* attributes = nullptr;
    Check(vtable->GetTypeAttr(&attributes));
    const WORD count = attributes->cFuncs;
    vtable->ReleaseTypeAttr(attributes);
    for (WORD i = 0; i < count; ++i) {
        FUNCDESC* function = nullptr;
        Check(vtable->GetFuncDesc(i, &function));
        const auto release = [&](FUNCDESC* held) { vtable->ReleaseFuncDesc(held); };
        const std::unique_ptr<FUNCDESC, decltype(release)> owner(function, release);
        members_.push_back(Describe(vtable.Get(), *function));
    }
}

const DispatchMember* DispatchTable::Find(DISPID id, WORD flags) const {
    constexpr WORD kReads = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    constexpr WORD kWrites = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
    const DispatchMember* similar = nullptr;
    for (const DispatchMember& member : members_) {
        if (member.id != id)
            continue;
        if ((member.kind & flags) != 0)
            return &member;
        const WORD group = (flags & kWrites) != 0 ? kWrites : kReads;
        if ((member.kind & group) != 0)
            similar = &member;
    }
    return similar;
}

} // namespace com
