#pragma once

#include "com/dispatch_member.h"
#include "com/variant.h"

#include <windows.h>

#include <oleauto.h>

namespace com {

/// One argument on its way from a late-bound caller into a typed parameter and back.
class Argument {
public:
    /// Takes what the caller passed. DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW … when it does not convert.
    HRESULT Take(const DispatchParameter& parameter, VARIANTARG* passed, LCID locale);
    /// Takes the default of an omitted optional parameter; DISP_E_PARAMNOTOPTIONAL when it is not optional.
    HRESULT TakeDefault(const DispatchParameter& parameter);

    /// The argument as DispCallFunc wants it; valid while this object stays where it is.
    VARTYPE CallType() const { return callType_; }
    VARIANTARG* CallValue() { return &call_; }

    /// Hands a changed by-reference value back to the caller's variable.
    HRESULT GiveBack(LCID locale);

private:
    void Prepare(const DispatchParameter& parameter);

    Variant local_;
    VARIANTARG* caller_ = nullptr; ///< where to give a changed value back, nullptr for none
    VARTYPE callType_ = VT_EMPTY;
    VARIANTARG call_{};
};

} // namespace com
