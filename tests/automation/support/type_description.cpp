#include "support/type_description.h"

#include "support/bstr.h"
#include "support/text.h"
#include "support/value.h"

#include <oleauto.h>

#include <map>

namespace support {

namespace {

/// IUnknown and IDispatch come first in every table.
constexpr int kInheritedSlots = 7;

std::string TypeName(ITypeInfo* info, const TYPEDESC& type, int& pointers) {
    static const std::map<VARTYPE, const char*> kNames = {
        {VT_I2, "short"},  {VT_I4, "long"},   {VT_R4, "float"},           {VT_R8, "double"},
        {VT_BSTR, "BSTR"}, {VT_BOOL, "bool"}, {VT_DISPATCH, "IDispatch"}, {VT_UNKNOWN, "IUnknown"},
    };
    if (type.vt == VT_PTR) {
        ++pointers;
        return TypeName(info, *type.lptdesc, pointers);
    }
    if (type.vt != VT_USERDEFINED)
        return kNames.contains(type.vt) ? kNames.at(type.vt) : "type " + std::to_string(type.vt);
    Ref<ITypeInfo> target;
    Bstr name;
    if (FAILED(info->GetRefTypeInfo(type.hreftype, target.Put())) ||
        FAILED(target->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr)))
        return "unknown type";
    if (Attributes(target.Get()).typekind != TKIND_ENUM)
        --pointers; // the first pointer belongs to an object
    return Narrow(name.Text());
}

std::string Parameter(ITypeInfo* info, const ELEMDESC& element, const std::wstring& name) {
    int pointers = 0;
    std::string text = TypeName(info, element.tdesc, pointers);
    if (!name.empty())
        text += ' ' + Narrow(name);
    const USHORT flags = element.paramdesc.wParamFlags;
    if (pointers > 0 && (flags & PARAMFLAG_FIN) != 0 && (flags & PARAMFLAG_FOUT) != 0)
        text = "ref " + text;
    else if (pointers > 0)
        text = "pointer " + text;
    if ((flags & PARAMFLAG_FHASDEFAULT) != 0) {
        Value number;
        VariantChangeType(number.Raw(), &element.paramdesc.pparamdescex->varDefaultValue, 0, VT_I4);
        text += " = " + std::to_string(number.Long());
    } else if ((flags & PARAMFLAG_FOPT) != 0) {
        text += " optional";
    }
    return text;
}

std::string Describe(ITypeInfo* info, const FUNCDESC& function) {
    BSTR names[16] = {};
    UINT count = 0;
    info->GetNames(function.memid, names, 16, &count);
    std::vector<std::wstring> texts(17);
    for (UINT i = 0; i < count; ++i) {
        texts[i] = names[i];
        SysFreeString(names[i]);
    }
    static const std::map<INVOKEKIND, const char*> kKinds = {{INVOKE_FUNC, ""},
                                                             {INVOKE_PROPERTYGET, "get "},
                                                             {INVOKE_PROPERTYPUT, "let "},
                                                             {INVOKE_PROPERTYPUTREF, "set "}};
    std::string line =
        std::to_string(function.memid) + ' ' + kKinds.at(function.invkind) + Narrow(texts[0]) + '(';
    std::string result;
    for (SHORT i = 0; i < function.cParams; ++i) {
        const ELEMDESC& element = function.lprgelemdescParam[i];
        if ((element.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0) {
            int pointers = -1; // the place for the result
            result = " As " + TypeName(info, element.tdesc, pointers);
            if (pointers != 0)
                result += " pointer";
            continue;
        }
        if (i > 0)
            line += ", ";
        // The names are those of the first member with this id: a value that is put has none of its own.
        const bool isPut = (function.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) != 0;
        line += Parameter(info, element, isPut ? std::wstring() : texts[static_cast<std::size_t>(i) + 1]);
    }
    line += ')' + result;
    if ((function.wFuncFlags & FUNCFLAG_FRESTRICTED) != 0)
        line += " restricted";
    if (function.elemdescFunc.tdesc.vt != VT_HRESULT)
        line += " without status";
    return line;
}

} // namespace

Ref<ITypeLib> RegisteredLibrary(const GUID& id, WORD major, WORD minor) {
    Ref<ITypeLib> library;
    LoadRegTypeLib(id, major, minor, 0x409, library.Put());
    return library;
}

Ref<ITypeInfo> TypeNamed(ITypeLib* library, const wchar_t* name) {
    const UINT count = library->GetTypeInfoCount();
    for (UINT i = 0; i < count; ++i) {
        Bstr found;
        Ref<ITypeInfo> info;
        library->GetDocumentation(static_cast<INT>(i), found.Put(), nullptr, nullptr, nullptr);
        if (found.Text() == name && SUCCEEDED(library->GetTypeInfo(i, info.Put())))
            return info;
    }
    return {};
}

TYPEATTR Attributes(ITypeInfo* type) {
    TYPEATTR* held = nullptr;
    TYPEATTR result{};
    if (SUCCEEDED(type->GetTypeAttr(&held))) {
        result = *held;
        type->ReleaseTypeAttr(held);
    }
    return result;
}

Ref<ITypeInfo> VtableOf(ITypeInfo* dispatch) {
    HREFTYPE reference = 0;
    Ref<ITypeInfo> vtable;
    if (SUCCEEDED(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)))
        dispatch->GetRefTypeInfo(reference, vtable.Put());
    return vtable;
}

std::vector<std::string> Members(ITypeInfo* interfaceType) {
    std::vector<std::string> lines;
    const WORD count = Attributes(interfaceType).cFuncs;
    for (WORD i = 0; i < count; ++i) {
        FUNCDESC* function = nullptr;
        if (FAILED(interfaceType->GetFuncDesc(i, &function)))
            continue;
        std::string line = Describe(interfaceType, *function);
        if (function->oVft != static_cast<SHORT>((kInheritedSlots + i) * static_cast<int>(sizeof(void*))))
            line = '[' + std::to_string(function->oVft / static_cast<int>(sizeof(void*))) + "] " + line;
        lines.push_back(line);
        interfaceType->ReleaseFuncDesc(function);
    }
    return lines;
}

} // namespace support
