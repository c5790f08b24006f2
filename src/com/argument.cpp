#include "com/argument.h"

#include "com/com_ptr.h"

namespace com {

namespace {

bool IsObject(VARTYPE type) {
    return type == VT_DISPATCH || type == VT_UNKNOWN;
}

/// Follows variables that refer to variables; the last one is a value or a typed reference.
VARIANTARG* Innermost(VARIANTARG* passed) {
    while (V_VT(passed) == (VT_BYREF | VT_VARIANT) && V_VARIANTREF(passed) != nullptr)
        passed = V_VARIANTREF(passed);
    return passed;
}

IUnknown* ObjectOf(const VARIANTARG& value) {
    if ((V_VT(&value) & VT_BYREF) != 0)
        return V_UNKNOWNREF(&value) != nullptr ? *V_UNKNOWNREF(&value) : nullptr;
    return V_UNKNOWN(&value);
}

HRESULT ConvertObject(const DispatchParameter& parameter, VARIANTARG* from, VARIANT* to) {
    // Null is how JScript says Nothing; a variable that is to receive an object may be empty before.
    const bool nothing = V_VT(from) == VT_NULL || (V_VT(from) == VT_EMPTY && parameter.byReference);
    if (!nothing && !IsObject(V_VT(from) & VT_TYPEMASK))
        return DISP_E_TYPEMISMATCH;
    IUnknown* const object = nothing ? nullptr : ObjectOf(*from);
    void* wanted = nullptr;
    if (object != nullptr && FAILED(object->QueryInterface(parameter.iid, &wanted)))
        return DISP_E_TYPEMISMATCH;
    V_VT(to) = parameter.type;
    V_UNKNOWN(to) = static_cast<IUnknown*>(wanted);
    return S_OK;
}

/// Writes a value into a variable of a fixed type, which gives up what it held.
HRESULT Store(VARIANT* value, VARIANTARG* variable, LCID locale) {
    const VARTYPE type = V_VT(variable) & VT_TYPEMASK;
    if (IsObject(type)) {
        if (!IsObject(V_VT(value)))
            return DISP_E_TYPEMISMATCH;
        IUnknown*& place = *V_UNKNOWNREF(variable);
        const ComPtr<IUnknown> old = ComPtr<IUnknown>::Attach(place);
        place = V_UNKNOWN(value);
        V_VT(value) = VT_EMPTY;
        return S_OK;
    }
    Variant converted;
    const HRESULT status = VariantChangeTypeEx(converted.Get(), value, locale, 0, type);
    if (FAILED(status))
        return status;
    switch (type) {
    case VT_I1:
    case VT_UI1: *V_UI1REF(variable) = V_UI1(converted.Get()); break;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL: *V_I2REF(variable) = V_I2(converted.Get()); break;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_ERROR:
    case VT_R4: *V_I4REF(variable) = V_I4(converted.Get()); break;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_DATE:
    case VT_CY: *V_I8REF(variable) = V_I8(converted.Get()); break;
    case VT_BSTR:
        SysFreeString(*V_BSTRREF(variable));
        *V_BSTRREF(variable) = V_BSTR(converted.Get());
        V_VT(converted.Get()) = VT_EMPTY;
        break;
    default: return DISP_E_TYPEMISMATCH;
    }
    return S_OK;
}

} // namespace

void Argument::Prepare(const DispatchParameter& parameter) {
    if (!parameter.byReference) {
        callType_ = parameter.type;
        call_ = *local_.Get();
        return;
    }
    callType_ = VT_BYREF | parameter.type;
    V_VT(&call_) = callType_;
    V_BYREF(&call_) = &V_I8(local_.Get()); // every value starts at the same place of a VARIANT
}

HRESULT Argument::Take(const DispatchParameter& parameter, VARIANTARG* passed, LCID locale) {
    VARIANTARG* const value = Innermost(passed);
    if (V_VT(value) == VT_ERROR && V_ERROR(value) == DISP_E_PARAMNOTFOUND)
        return TakeDefault(parameter);
    const VARTYPE type = V_VT(value);
    if ((type & VT_ARRAY) != 0 || ((type & VT_BYREF) != 0 && V_BYREF(value) == nullptr))
        return DISP_E_TYPEMISMATCH;
    if (parameter.byReference && type == (VT_BYREF | parameter.type) && !IsObject(parameter.type)) {
        callType_ = type;
        call_ = *value;
        return S_OK;
    }
    HRESULT status = S_OK;
    if (IsObject(parameter.type)) {
        status = ConvertObject(parameter, value, local_.Put());
    } else {
        Variant plain;
        status = VariantCopyInd(plain.Get(), value);
        if (SUCCEEDED(status))
            status = VariantChangeTypeEx(local_.Put(), plain.Get(), locale, 0, parameter.type);
    }
    // Whatever else the system says about an object or an array where a plain value belongs, it is the
    // wrong type.
    if (FAILED(status))
        return status == DISP_E_OVERFLOW || status == E_OUTOFMEMORY ? status : DISP_E_TYPEMISMATCH;
    const bool isVariable = value != passed || (type & VT_BYREF) != 0;
    caller_ = parameter.byReference && isVariable ? value : nullptr;
    Prepare(parameter);
    return S_OK;
}

HRESULT Argument::TakeDefault(const DispatchParameter& parameter) {
    if (!parameter.optional)
        return DISP_E_PARAMNOTOPTIONAL;
    VARIANT value;
    V_VT(&value) = VT_I4;
    V_I4(&value) = parameter.hasDefault ? parameter.defaultValue : 0;
    if (IsObject(parameter.type)) {
        V_VT(local_.Put()) = parameter.type;
        V_UNKNOWN(local_.Get()) = nullptr;
    } else if (const HRESULT status = VariantChangeType(local_.Put(), &value, 0, parameter.type);
               FAILED(status)) {
        return status;
    }
    Prepare(parameter);
    return S_OK;
}

HRESULT Argument::GiveBack(LCID locale) {
    if (caller_ == nullptr)
        return S_OK;
    if ((V_VT(caller_) & VT_BYREF) != 0)
        return Store(local_.Get(), caller_, locale);
    // A variable without a type takes the value as it is.
    VARIANT old = *caller_;
    *caller_ = *local_.Get();
    V_VT(local_.Get()) = VT_EMPTY;
    return VariantClear(&old);
}

} // namespace com
