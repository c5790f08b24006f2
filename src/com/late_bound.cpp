#include "com/late_bound.h"

#include "com/bstr.h"
#include "com/foreign_error.h"
#include "com/object_call.h"
#include "com/type_name.h"

namespace com {

namespace {

constexpr std::int32_t kArgumentNotOptional = 449;
constexpr std::int32_t kWrongArgumentCount = 450;

bool IsRefusal(HRESULT status) {
    const auto code = static_cast<std::uint32_t>(status);
    return status == DISP_E_BADPARAMCOUNT || status == DISP_E_PARAMNOTOPTIONAL ||
           code == base::NumberedStatus(kArgumentNotOptional) ||
           code == base::NumberedStatus(kWrongArgumentCount);
}

DISPPARAMS Positional(std::span<VARIANTARG> reversedArguments) {
    return {reversedArguments.data(), nullptr, static_cast<UINT>(reversedArguments.size()), 0};
}

} // namespace

bool LateBoundMember::Exists() {
    if (id_ != DISPID_UNKNOWN)
        return true;
    auto* name = const_cast<wchar_t*>(name_); // the method takes it without const but does not write
    ::SetErrorInfo(0, nullptr);
    const HRESULT status = object_.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id_);
    if (FAILED(status))
        id_ = DISPID_UNKNOWN;
    if (FAILED(status) && status != DISP_E_UNKNOWNNAME && status != DISP_E_MEMBERNOTFOUND)
        ThrowFailure(object_, IID_IDispatch, status);
    return id_ != DISPID_UNKNOWN;
}

void LateBoundMember::ThrowMissing() {
    std::u16string text(base::Description(base::RunTimeError::NoSuchMember));
    text.append(u": ").append(TypeName(object_)).append(u".").append(platform::Utf16(name_));
    throw base::Error(static_cast<std::int32_t>(base::RunTimeError::NoSuchMember), {}, std::move(text));
}

DISPID LateBoundMember::Id() {
    if (!Exists())
        ThrowMissing();
    return id_;
}

HRESULT LateBoundMember::Invoke(WORD flags, DISPPARAMS& arguments, VARIANT* result,
                                ExceptionInfo& exception) {
    const DISPID id = Id();
    ::SetErrorInfo(0, nullptr);
    return object_.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, result, exception.Get(),
                          nullptr);
}

HRESULT LateBoundMember::Read(DISPPARAMS& arguments, VARIANT* result, ExceptionInfo& exception) {
    const HRESULT status = Invoke(DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, result, exception);
    // Objects made by hand may know one of the two only, and compare.
    return status == DISP_E_MEMBERNOTFOUND ? Invoke(DISPATCH_PROPERTYGET, arguments, result, exception)
                                           : status;
}

void LateBoundMember::Throw(HRESULT status, ExceptionInfo& exception) {
    if (status == DISP_E_MEMBERNOTFOUND)
        ThrowMissing();
    if (status == DISP_E_EXCEPTION)
        throw exception.Error();
    ThrowFailure(object_, IID_IDispatch, status);
}

void LateBoundMember::Get(VARTYPE type, Variant& value) {
    Variant raw;
    DISPPARAMS none{};
    ExceptionInfo exception;
    if (const HRESULT status = Read(none, raw.Get(), exception); FAILED(status))
        Throw(status, exception);
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
    ExceptionInfo exception;
    if (const HRESULT status = Invoke(DISPATCH_PROPERTYPUT, arguments, nullptr, exception); FAILED(status))
        Throw(status, exception);
}

bool LateBoundMember::CallUnlessRefused(std::span<VARIANTARG> reversedArguments, VARIANT* result) {
    DISPPARAMS arguments = Positional(reversedArguments);
    ExceptionInfo exception;
    const HRESULT status = Read(arguments, result, exception);
    if (SUCCEEDED(status))
        return true;
    if (IsRefusal(status == DISP_E_EXCEPTION ? exception.Status() : status))
        return false;
    Throw(status, exception);
}

void LateBoundMember::Call(std::span<VARIANTARG> reversedArguments, VARIANT* result) {
    DISPPARAMS arguments = Positional(reversedArguments);
    ExceptionInfo exception;
    if (const HRESULT status = Read(arguments, result, exception); FAILED(status))
        Throw(status, exception);
}

} // namespace com
