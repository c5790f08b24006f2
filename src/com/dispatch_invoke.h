#pragma once

#include "com/dispatch_table.h"

namespace com {

/// IDispatch::Invoke for a dual interface.
///
/// Maps positional and named arguments to parameters, fills omitted optional ones with their defaults,
/// accepts any convertible by-reference argument (script hosts pass variables without a type) and hands
/// results back.
HRESULT InvokeMember(const DispatchTable& table, IDispatch* object, DISPID id, LCID locale, WORD flags,
                     DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception, UINT* argumentError);

/// What Invoke answers after a failure with the thread's error info: the caller's exception filled in, or the
/// plain status where the caller wants none.
HRESULT FailedInvoke(HRESULT status, EXCEPINFO* exception);

} // namespace com
