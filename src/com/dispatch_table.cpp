#include "com/dispatch_table.h"

#include "com/error_info.h"
#include "com/exclusive_lock.h"
#include "com/module.h"
#include "com/referenced_type.h"

#include <memory>

namespace com {

namespace {

/// The description of a function, given back at its end.
class Function {
public:
    Function(ITypeInfo& info, UINT index) : info_(info) { Check(info.GetFuncDesc(index, &description_)); }
    Function(const Function&) = delete;
    Function& operator=(const Function&) = delete;
    ~Function() { info_.ReleaseFuncDesc(description_); }

    const FUNCDESC* Get() const { return description_; }
    const FUNCDESC* operator->() const { return description_; }

private:
    ITypeInfo& info_;
    FUNCDESC* description_ = nullptr;
};

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
    const ComPtr<ITypeInfo> target = ReferencedType(info, type.hreftype);
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
    ITypeLib& library = TheModule().TypeLibrary();
    const ExclusiveLock lock(TheModule().TypeLock());
    Check(library.GetTypeInfoOfGuid(iid, typeInfo_.Put()));
    HREFTYPE vtableRef = 0;
    Check(typeInfo_->GetRefTypeOfImplType(static_cast<UINT>(-1), &vtableRef));
    Check(typeInfo_->GetRefTypeInfo(vtableRef, vtable_.Put()));
    TYPEATTR* attributes = nullptr;
    Check(vtable_->GetTypeAttr(&attributes));
    const WORD count = attributes->cFuncs;
    vtable_->ReleaseTypeAttr(attributes);
    entries_ = std::vector<Entry>(count);
    for (WORD i = 0; i < count; ++i) {
        const Function function(*vtable_.Get(), i);
        entries_[i].id = function->memid;
        entries_[i].kind = function->invkind;
    }
}

HRESULT DispatchTable::IdsOfNames(LPOLESTR* names, UINT count, DISPID* ids) const {
    const ExclusiveLock lock(TheModule().TypeLock());
    return typeInfo_->GetIDsOfNames(names, count, ids);
}

const DispatchMember* DispatchTable::Find(DISPID id, WORD flags) const {
    constexpr WORD kReads = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    constexpr WORD kWrites = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
    std::size_t similar = entries_.size();
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const Entry& entry = entries_[i];
        if (entry.id != id)
            continue;
        if ((entry.kind & flags) != 0)
            return Described(i);
        const WORD group = (flags & kWrites) != 0 ? kWrites : kReads;
        if ((entry.kind & group) != 0)
            similar = i;
    }
    return similar < entries_.size() ? Described(similar) : nullptr;
}

const DispatchMember* DispatchTable::Described(std::size_t index) const {
    Entry& entry = entries_[index];
    if (const DispatchMember* const known = entry.member.load(std::memory_order_acquire))
        return known;
    const ExclusiveLock lock(TheModule().TypeLock());
    if (!entry.owner) {
        const Function function(*vtable_.Get(), static_cast<UINT>(index));
        entry.owner = std::make_unique<const DispatchMember>(Describe(vtable_.Get(), *function.Get()));
        entry.member.store(entry.owner.get(), std::memory_order_release);
    }
    return entry.owner.get();
}

} // namespace com
