#include "support/basic_collection.h"

#include <oleauto.h>

namespace support {

namespace {

enum : DISPID { kItem = DISPID_VALUE, kCount = 1, kExists = 2 };

HRESULT Raise(EXCEPINFO* exception, const Failure& failure) {
    *exception = {};
    exception->scode = failure.status;
    exception->bstrSource = SysAllocString(failure.source.c_str());
    exception->bstrDescription = SysAllocString(failure.description.c_str());
    return DISP_E_EXCEPTION;
}

} // namespace

Ref<BasicCollection> BasicCollection::Create(const std::vector<std::wstring>& keys) {
    auto collection = Ref<BasicCollection>::Attach(new BasicCollection);
    collection->keys_ = keys;
    return collection;
}

STDMETHODIMP BasicCollection::QueryInterface(REFIID iid, void** object) {
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch;
    *object = known ? this : nullptr;
    if (known)
        AddRef();
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) BasicCollection::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP BasicCollection::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
    ids[0] = _wcsicmp(names[0], L"Item") == 0                       ? DISPID{kItem}
             : _wcsicmp(names[0], L"Count") == 0                    ? DISPID{kCount}
             : existsFailure_ && _wcsicmp(names[0], L"Exists") == 0 ? DISPID{kExists}
                                                                    : DISPID_UNKNOWN;
    return ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

STDMETHODIMP BasicCollection::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* result,
                                     EXCEPINFO* exception, UINT*) {
    if (id == kCount && failure_)
        return Raise(exception, *failure_);
    if (id == kExists)
        return Raise(exception, *existsFailure_);
    if (id == kItem && arguments->cArgs == 1)
        return Item(arguments->rgvarg[0], result, exception);
    if (id != kCount || arguments->cArgs != 0)
        return DISP_E_BADPARAMCOUNT;
    V_VT(result) = VT_I4;
    V_I4(result) = static_cast<LONG>(keys_.size());
    return S_OK;
}

HRESULT BasicCollection::Item(const VARIANTARG& key, VARIANT* result, EXCEPINFO* exception) const {
    if (V_VT(&key) != VT_BSTR)
        return Raise(exception, RunTimeError(13, L"Basic"));
    for (const std::wstring& candidate : keys_) {
        if (CompareStringOrdinal(candidate.c_str(), -1, V_BSTR(&key), -1, TRUE) != CSTR_EQUAL)
            continue;
        if (result != nullptr) {
            V_VT(result) = VT_BSTR;
            V_BSTR(result) = SysAllocString(candidate.c_str());
        }
        return S_OK;
    }
    return Raise(exception, RunTimeError(5, L"Basic"));
}

} // namespace support
