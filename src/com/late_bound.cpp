#include "com/late_bound.h"

#include "base/error.h"
#include "com/bstr.h"
#include "com/error_info.h"

namespace com {

namespace {

constexpr std::uint32_t kNumberedStatus = 0x800A0000U;

constexpr HRESULT kArgumentNotOptional = static_cast<HRESULT>(kNumberedStatus + 449U);
constexpr HRESULT kWrongArgumentCount = static_cast<HRESULT>(kNumberedStatus + 450U);

bool IsRefusal(HRESULT status) {
    return status == DISP_E_BADPARAMCOUNT || status == DISP_E_PARAMNOTOPTIONAL ||
           status == kArgumentNotOptional || status == kWrongArgumentCount;
}

void FreeTexts(EXCEPINFO& exception) {
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
}

/// Throws what a failed Invoke left behind.
[[noreturn]] void ThrowFailure(HRESULT status, EXCEPINFO& exception) {
    if (status == DISP_E_MEMBERNOTFOUND)
        base::Raise(base::RunTimeError::NoSuchMember);
    if (status != DISP_E_EXCEPTION)
        ThrowPendingError(status);
    if (exception.pfnDeferredFillIn != nullptr)
        exception.pfnDeferredFillIn(&exception);
    std::u16string source = Text(exception.bstrSource);
    std::u16string description = Text(exception.bstrDescription);
    FreeTexts(exception);
    const std::uint32_t code = exception.wCode != 0   ? kNumberedStatus + exception.wCode
                               : exception.scode != 0 ? static_cast<std::uint32_t>(exception.scode)
                                                      : static_cast<std::uint32_t>(DISP_E_EXCEPTION);
    if (description.empty())
        description = u"Automatisierungsfehler";
    throw base::Error::FromStatus(code, std::move(source), std::move(description));
}

} // namespace

bool LateBoundMember::Exists() {
    if (id_ != DISPID_UNKNOWN)
        return true;
    auto* name = const_cast<wchar_t*>(name_); // the method takes it without const but does not write
    return SUCCEEDED(object_.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id_)) &&
           id_ != DISPID_UNKNOWN;
}

DISPID LateBoundMember::Id() {
    if (!Exists())
        base::Raise(base::RunTimeError::NoSuchMember);
    return id_;
}

HRESULT LateBoundMember::Invoke(WORD flags, DISPPARAMS& arguments, VARIANT* result, EXCEPINFO& exception) {
    ::SetErrorInfo(0, nullptr);
    return object_.Invoke(Id(), IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, result, &exception,
                          nullptr);
}

void LateBoundMember::InvokeOrThrow(WORD flags, DISPPARAMS& arguments, VARIANT* result) {
    EXCEPINFO exception{};
    const HRESULT status = Invoke(flags, arguments, result, exception);
    if (FAILED(status))
        ThrowFailure(status, exception);
}

void LateBoundMember::Get(VARTYPE type, Variant& value) {
    Variant raw;
    DISPPARAMS none{};
    InvokeOrThrow(DISPATCH_PROPERTYGET, none, raw.Get());
    if (FAILED(VariantChangeTypeEx(value.Put(), raw.Get(), LOCALE_USER_DEFAULT, 0, type)))
        base::Raise(base::RunTimeError::TypeMismatch);
}

std::int32_t LateBoundMember::GetLong() {
    Variant value;
    Get(VT_I4, value);
    return V_I4(value.Get());
}

double LateBoundMember::GetDouble() {
    Variant value;
    Get(VT_R8, value);
    return V_R8(value.Get());
}

std::u16string LateBoundMember::GetText() {
    Variant value;
    Get(VT_BSTR, value);
    return Text(V_BSTR(value.Get()));
}

void LateBoundMember::PutLong(std::int32_t value) {
    VARIANTARG argument;
    V_VT(&argument) = VT_I4;
    V_I4(&argument) = value;
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS arguments{&argument, &put, 1, 1};
    InvokeOrThrow(DISPATCH_PROPERTYPUT, arguments, nullptr);
}

bool LateBoundMember::CallUnlessRefused(std::span<VARIANTARG> reversedArguments, VARIANT* result) {
    DISPPARAMS arguments{reversedArguments.data(), nullptr, static_cast<UINT>(reversedArguments.size()), 0};
    EXCEPINFO exception{};
    const HRESULT status = Invoke(DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, result, exception);
    if (SUCCEEDED(status))
        return true;
    if (IsRefusal(status) || (status == DISP_E_EXCEPTION && IsRefusal(exception.scode))) {
        FreeTexts(exception);
        return false;
    }
    ThrowFailure(status, exception);
}

void LateBoundMember::Call(std::span<VARIANTARG> reversedArguments, VARIANT* result) {
    DISPPARAMS arguments{reversedArguments.data(), nullptr, static_cast<UINT>(reversedArguments.size()), 0};
    InvokeOrThrow(DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, result);
}

} // namespace com
