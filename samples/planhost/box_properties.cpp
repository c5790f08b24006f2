#include "box_properties.h"

void PutProperty(IDispatch& box, const wchar_t* name, LONG value) {
    auto* names = const_cast<wchar_t*>(name);
    DISPID id = DISPID_UNKNOWN;
    Check(box.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id), name);
    VARIANTARG argument;
    V_VT(&argument) = VT_I4;
    V_I4(&argument) = value;
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS arguments{&argument, &put, 1, 1};
    Check(box.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments, nullptr, nullptr,
                     nullptr),
          name);
}
