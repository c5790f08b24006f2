#include "automation/host_calls.h"

#include "automation/counting_box.h"

void MakeHostCalls(std::int64_t count) {
    VARIANTARG value;
    V_VT(&value) = VT_I4;
    V_I4(&value) = 1;
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS arguments{&value, &put, 1, 1};
    CountingBox box(nullptr);
    IDispatch* volatile host = &box;
    for (std::int64_t i = 0; i < count; ++i)
        host->Invoke(4, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments, nullptr, nullptr,
                     nullptr);
}
