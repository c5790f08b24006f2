#pragma once

#include <windows.h>

#include <oleauto.h>

#include <vector>

namespace com {

/// A parameter of a vtable method as the type library describes it.
struct DispatchParameter {
    VARTYPE type = VT_EMPTY; ///< of the value itself; VT_DISPATCH or VT_UNKNOWN for every object
    IID iid{};               ///< of an object
    bool byReference = false;
    bool optional = false;
    bool hasDefault = false;
    long defaultValue = 0;
};

/// A method or one accessor of a property.
struct DispatchMember {
    DISPID id = DISPID_UNKNOWN;
    INVOKEKIND kind = INVOKE_FUNC;
    SHORT vtableOffset = 0;
    std::vector<DispatchParameter> parameters; ///< without the result
    bool hasResult = false;
    DispatchParameter result;
};

} // namespace com
