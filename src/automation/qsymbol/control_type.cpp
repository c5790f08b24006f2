#include "automation/qsymbol/control_type.h"

#include "com/bstr.h"
#include "com/com_ptr.h"

#include <ocidl.h>

bool IsPrinter(IDispatch& control) {
    com::ComPtr<ITypeInfo> type;
    com::ComPtr<IProvideClassInfo> provider;
    // The class tells more than its default interface.
    if (SUCCEEDED(control.QueryInterface(IID_IProvideClassInfo, provider.PutVoid())))
        provider->GetClassInfo(type.Put());
    if (!type && FAILED(control.GetTypeInfo(0, LOCALE_USER_DEFAULT, type.Put())))
        return false;
    com::Bstr name;
    if (!type || FAILED(type->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr)))
        return false;
    std::u16string_view text = name.View();
    if (!text.empty() && text.front() == u'_')
        text.remove_prefix(1);
    return text == u"Printer";
}
