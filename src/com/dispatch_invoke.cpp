#include "com/dispatch_invoke.h"

#include "com/argument.h"
#include "com/foreign_error.h"

#include <cstring>
#include <deque>

namespace com {

namespace {

constexpr UINT kNone = static_cast<UINT>(-1);

/// For each parameter the index into the caller's argument array, kNone for an omitted one.
HRESULT MapArguments(const DispatchMember& member, WORD flags, const DISPPARAMS& passed,
                     std::vector<UINT>& map, UINT* argumentError) {
    const UINT count = static_cast<UINT>(member.parameters.size());
    map.assign(count, kNone);
    const UINT positional = passed.cArgs - passed.cNamedArgs;
    const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    if (positional > count)
        return DISP_E_BADPARAMCOUNT;
    for (UINT i = 0; i < positional; ++i)
        map[i] = passed.cArgs - 1 - i; // the last argument comes first
    for (UINT i = 0; i < passed.cNamedArgs; ++i) {
        const DISPID name = passed.rgdispidNamedArgs[i];
        const UINT parameter = name == DISPID_PROPERTYPUT && isPut ? count - 1 : static_cast<UINT>(name);
        if (parameter >= count || map[parameter] != kNone) {
            if (argumentError != nullptr)
                *argumentError = i;
            return name == DISPID_PROPERTYPUT ? DISP_E_BADPARAMCOUNT : DISP_E_PARAMNOTFOUND;
        }
        map[parameter] = i;
    }
    return S_OK;
}

/// Hands every changed by-reference value back; the first failure, with the argument that it concerns.
HRESULT GiveBack(std::deque<Argument>& taken, const std::vector<UINT>& map, LCID locale,
                 UINT* argumentError) {
    HRESULT first = S_OK;
    for (std::size_t i = 0; i < taken.size(); ++i) {
        const HRESULT status = taken[i].GiveBack(locale);
        if (SUCCEEDED(status) || FAILED(first))
            continue;
        first = status;
        if (argumentError != nullptr)
            *argumentError = map[i];
    }
    return first;
}

void FillException(EXCEPINFO* exception, HRESULT status) {
    std::memset(exception, 0, sizeof *exception);
    exception->scode = status;
    ThreadErrorInfo info;
    exception->bstrSource = info.source.Detach();
    exception->bstrDescription = info.description.Detach();
    exception->bstrHelpFile = info.helpFile.Detach();
    exception->dwHelpContext = info.helpContext;
}

} // namespace

HRESULT InvokeMember(const DispatchTable& table, IDispatch* object, DISPID id, LCID locale, WORD flags,
                     DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception, UINT* argumentError) {
    if (arguments == nullptr)
        return E_INVALIDARG;
    const DispatchMember* const member = table.Find(id, flags);
    if (member == nullptr)
        return DISP_E_MEMBERNOTFOUND;

    std::vector<UINT> map;
    if (const HRESULT status = MapArguments(*member, flags, *arguments, map, argumentError); FAILED(status))
        return status;

    const UINT count = static_cast<UINT>(map.size());
    std::deque<Argument> taken(count); // arguments must not move: the call points into them
    std::vector<VARTYPE> types(count + 1U);
    std::vector<VARIANTARG*> values(count + 1U);
    for (UINT i = 0; i < count; ++i) {
        const DispatchParameter& parameter = member->parameters[i];
        const HRESULT status = map[i] == kNone ? taken[i].TakeDefault(parameter)
                                               : taken[i].Take(parameter, &arguments->rgvarg[map[i]], locale);
        if (FAILED(status)) {
            if (argumentError != nullptr)
                *argumentError = map[i] == kNone ? i : map[i];
            return status;
        }
        types[i] = taken[i].CallType();
        values[i] = taken[i].CallValue();
    }

    Variant returned;
    VARIANTARG returnedPlace{};
    if (member->hasResult) {
        V_VT(returned.Get()) = member->result.type;
        V_I8(returned.Get()) = 0;
        types[count] = VT_BYREF | member->result.type;
        V_VT(&returnedPlace) = types[count];
        V_BYREF(&returnedPlace) = &V_I8(returned.Get());
        values[count] = &returnedPlace;
    }

    ::SetErrorInfo(0, nullptr);
    VARIANT callStatus;
    VariantInit(&callStatus);
    HRESULT status =
        DispCallFunc(object, static_cast<ULONG_PTR>(member->vtableOffset), CC_STDCALL, VT_ERROR,
                     count + (member->hasResult ? 1U : 0U), types.data(), values.data(), &callStatus);
    if (FAILED(status))
        return status;
    status = V_ERROR(&callStatus);

    // Also after a failure: AppendRef empties the caller's variable in any case.
    const HRESULT given = GiveBack(taken, map, locale, argumentError);
    if (FAILED(status))
        return FailedInvoke(status, exception);
    if (FAILED(given))
        return given;
    if (result != nullptr) {
        *result = *returned.Get();
        V_VT(returned.Get()) = VT_EMPTY;
    }
    return S_OK;
}

HRESULT FailedInvoke(HRESULT status, EXCEPINFO* exception) {
    if (exception == nullptr)
        return status;
    FillException(exception, status);
    return DISP_E_EXCEPTION;
}

} // namespace com
