#include "support/enumerate.h"

#include "support/dispatch.h"

namespace support {

Ref<IEnumVARIANT> EnumeratorOf(IDispatch* collection) {
    const Answer answer =
        Dispatch(collection).InvokeId(DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {});
    if (FAILED(answer.status) || answer.value.Type() != VT_UNKNOWN)
        return {};
    return Ref<IUnknown>(V_UNKNOWN(answer.value.Raw())).As<IEnumVARIANT>();
}

Value NextOf(IEnumVARIANT* enumerator) {
    Value item;
    ULONG fetched = 0;
    const HRESULT status = enumerator->Next(1, item.Raw(), &fetched);
    EXPECT_EQ(status, fetched == 1 ? S_OK : S_FALSE);
    return item;
}

std::vector<Value> RestOf(IEnumVARIANT* enumerator) {
    std::vector<Value> items;
    for (Value item = NextOf(enumerator); item.Type() != VT_EMPTY; item = NextOf(enumerator))
        items.push_back(item);
    return items;
}

} // namespace support
