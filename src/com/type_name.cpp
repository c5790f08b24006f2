#include "com/type_name.h"

#include "com/bstr.h"
#include "com/com_ptr.h"

#include <ocidl.h>

namespace com {

std::u16string TypeName(IDispatch& object) {
    ComPtr<ITypeInfo> type;
    ComPtr<IProvideClassInfo> provider;
    // The class tells more than its default interface.
    if (SUCCEEDED(object.QueryInterface(IID_IProvideClassInfo, provider.PutVoid())))
        provider->GetClassInfo(type.Put());
    if (!type)
        object.GetTypeInfo(0, LOCALE_USER_DEFAULT, type.Put());
    Bstr name;
    if (type)
        type->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr);
    std::u16string_view text = name.View();
    if (!text.empty() && text.front() == u'_')
        text.remove_prefix(1);
    return std::u16string(text.empty() ? u"Object" : text);
}

} // namespace com
