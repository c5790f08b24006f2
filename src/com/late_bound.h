#pragma once

#include "com/com_ptr.h"
#include "com/variant.h"

#include <windows.h>

#include <oaidl.h>

#include <cstdint>
#include <span>
#include <string>

namespace com {

class ExceptionInfo;

/// A member of an object reached by name; looks its dispid up once. The caller holds the object.
///
/// Errors of the object keep its number, source and description; a member that it does not have is error 438
/// with a text that names both.
class LateBoundMember {
public:
    LateBoundMember(IDispatch& object, const wchar_t* name) : object_(object), name_(name) {}

    /// True when the object knows the name.
    bool Exists();

    /// Reads a property, or a function without arguments, into a value of the given type. Error 13 when it
    /// does not convert.
    void Get(VARTYPE type, Variant& value);
    std::int32_t GetLong();
    double GetDouble();
    std::u16string GetText();

    void PutLong(std::int32_t value);

    /// Calls a method or reads a property with arguments, given last one first; `result` may be nullptr.
    void Call(std::span<VARIANTARG> reversedArguments, VARIANT* result);
    /// The same, but false when the object refuses the number of arguments.
    bool CallUnlessRefused(std::span<VARIANTARG> reversedArguments, VARIANT* result);

private:
    DISPID Id();
    HRESULT Invoke(WORD flags, DISPPARAMS& arguments, VARIANT* result, ExceptionInfo& exception);
    /// Invoke as Basic reads: what stands for a value may be a property as well as a function.
    HRESULT Read(DISPPARAMS& arguments, VARIANT* result, ExceptionInfo& exception);
    [[noreturn]] void Throw(HRESULT status, ExceptionInfo& exception);
    [[noreturn]] void ThrowMissing();

    IDispatch& object_;
    const wchar_t* name_;
    DISPID id_ = DISPID_UNKNOWN;
};

} // namespace com
