#include "automation/qsymbol/name_list.h"

#include "base/error.h"
#include "com/bstr.h"
#include "com/error_info.h"
#include "com/late_bound.h"

namespace {

VARIANTARG TextArgument(const com::Bstr& text) {
    VARIANTARG argument;
    V_VT(&argument) = VT_BSTR;
    V_BSTR(&argument) = text.Get();
    return argument;
}

bool Exists(IDispatch& collection, const std::u16string& name) {
    const com::Bstr text(name);
    VARIANTARG argument = TextArgument(text);
    com::Variant answer;
    com::LateBoundMember(collection, L"Exists").Call({&argument, 1}, answer.Get());
    com::Variant flag;
    return SUCCEEDED(VariantChangeType(flag.Get(), answer.Get(), 0, VT_BOOL)) &&
           V_BOOL(flag.Get()) != VARIANT_FALSE;
}

bool HasItem(IDispatch& collection, const std::u16string& name) {
    const com::Bstr text(name);
    VARIANTARG argument = TextArgument(text);
    com::Variant item;
    com::LateBoundMember(collection, L"Item").Call({&argument, 1}, item.Get());
    return true;
}

/// False after any error of the host's collection.
bool Contains(IDispatch& collection, const std::u16string& name) {
    try {
        const bool canBeAsked = com::LateBoundMember(collection, L"Exists").Exists();
        return canBeAsked ? Exists(collection, name) : HasItem(collection, name);
    } catch (const base::Error&) {
        return false;
    }
}

} // namespace

qsymbol::NameList NameListOf(IDispatch* collection) {
    const com::ComPtr<IDispatch> held(collection);
    return {
        .count = [held] { return com::LateBoundMember(com::Required(held.Get()), L"Count").GetLong(); },
        .contains = [held](const std::u16string& name) { return Contains(com::Required(held.Get()), name); }};
}
