#include "support/dispatch.h"

#include <oleauto.h>

namespace support {

namespace {

std::wstring TakeText(BSTR& text) {
    const std::wstring result(text == nullptr ? L"" : text, SysStringLen(text));
    SysFreeString(text);
    text = nullptr;
    return result;
}

Failure TakeException(EXCEPINFO& exception) {
    if (exception.pfnDeferredFillIn != nullptr)
        exception.pfnDeferredFillIn(&exception);
    Failure failure;
    failure.status = exception.wCode != 0 ? Numbered(exception.wCode) : exception.scode;
    failure.source = TakeText(exception.bstrSource);
    failure.description = TakeText(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return failure;
}

} // namespace

Dispatch Dispatch::Create(const wchar_t* progId) {
    CLSID clsid{};
    Ref<IDispatch> object;
    if (SUCCEEDED(CLSIDFromProgID(progId, &clsid)))
        CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.PutVoid());
    return Dispatch(object);
}

DISPID Dispatch::Id(const wchar_t* member) const {
    std::wstring name(member);
    LPOLESTR names = name.data();
    DISPID id = DISPID_UNKNOWN;
    object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    return id;
}

Answer Dispatch::InvokeId(DISPID id, WORD flags, const std::vector<Value>& arguments,
                          const std::vector<DISPID>& namedIds, const std::vector<Value>& named) const {
    // Named arguments come first, positional ones follow with the last in front. The values stay
    // the caller's.
    std::vector<VARIANTARG> passed;
    for (const Value& value : named)
        passed.push_back(*value.Raw());
    for (auto value = arguments.rbegin(); value != arguments.rend(); ++value)
        passed.push_back(*value->Raw());
    std::vector<DISPID> ids = namedIds;
    DISPPARAMS parameters{passed.data(), ids.data(), static_cast<UINT>(passed.size()),
                          static_cast<UINT>(ids.size())};
    Answer answer;
    EXCEPINFO exception{};
    UINT argument = Answer::kNoIndex;
    SetErrorInfo(0, nullptr);
    answer.status = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, answer.value.Raw(),
                                    &exception, &argument);
    answer.argument = argument;
    if (answer.status == DISP_E_EXCEPTION)
        answer.failure = TakeException(exception);
    else
        answer.failure.status = answer.status;
    return answer;
}

Answer Dispatch::Invoke(const wchar_t* member, WORD flags, const std::vector<Value>& arguments,
                        const std::vector<Named>& named) const {
    std::vector<std::wstring> texts{member};
    std::vector<Value> values;
    for (const Named& argument : named) {
        texts.push_back(argument.name);
        values.push_back(argument.value);
    }
    std::vector<LPOLESTR> names;
    for (std::wstring& text : texts)
        names.push_back(text.data());
    std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
    Answer answer;
    answer.status = object_->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()),
                                           LOCALE_USER_DEFAULT, ids.data());
    answer.failure.status = answer.status;
    if (FAILED(answer.status))
        return answer;
    return InvokeId(ids[0], flags, arguments, {ids.begin() + 1, ids.end()}, values);
}

Answer Dispatch::Call(const wchar_t* member, const std::vector<Value>& arguments,
                      const std::vector<Named>& named) const {
    return Invoke(member, DISPATCH_METHOD, arguments, named);
}

Answer Dispatch::Get(const wchar_t* member, const std::vector<Value>& arguments) const {
    return Invoke(member, DISPATCH_PROPERTYGET, arguments);
}

Answer Dispatch::CallOrGet(const wchar_t* member, const std::vector<Value>& arguments) const {
    return Invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

Answer Dispatch::Put(const wchar_t* member, const Value& value) const {
    return InvokeId(Id(member), DISPATCH_PROPERTYPUT, {}, {DISPID_PROPERTYPUT}, {value});
}

Answer Dispatch::PutRef(const wchar_t* member, const Value& value) const {
    return InvokeId(Id(member), DISPATCH_PROPERTYPUTREF, {}, {DISPID_PROPERTYPUT}, {value});
}

} // namespace support
