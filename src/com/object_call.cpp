#include "com/object_call.h"

#include "com/foreign_error.h"

namespace com {

void ThrowFailure(IUnknown& object, REFIID iid, HRESULT status) {
    ComPtr<IErrorInfo> left;
    GetErrorInfo(0, left.Put()); // taken away first: the questions below may leave their own
    ComPtr<ISupportErrorInfo> support;
    object.QueryInterface(IID_ISupportErrorInfo, support.PutVoid());
    const bool answersForIt = support && support->InterfaceSupportsErrorInfo(iid) == S_OK;
    ::SetErrorInfo(0, answersForIt ? left.Get() : nullptr);
    const ThreadErrorInfo info;
    throw ForeignError(status, info.source.View(), info.description.View());
}

} // namespace com
