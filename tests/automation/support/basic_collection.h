#pragma once

#include "support/failure.h"
#include "support/ref.h"

#include <windows.h>

#include <oaidl.h>

#include <optional>
#include <string>
#include <vector>

namespace support {

/// The keyed collection of classic Basic as far as a list of names needs it: `Count`, and `Item(key)`, which
/// finds keys without regard to case and raises error 5 for one that is not there.
class BasicCollection final : public IDispatch {
public:
    static Ref<BasicCollection> Create(const std::vector<std::wstring>& keys);

    /// Asking for the number of items fails from now on.
    void FailOnCount(const Failure& failure) { failure_ = failure; }
    /// There is an `Exists` from now on, and it fails.
    void FailOnExists(const Failure& failure) { existsFailure_ = failure; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* argumentError) override;

private:
    BasicCollection() = default;
    virtual ~BasicCollection() = default;
    HRESULT Item(const VARIANTARG& key, VARIANT* result, EXCEPINFO* exception) const;

    std::vector<std::wstring> keys_;
    std::optional<Failure> failure_;
    std::optional<Failure> existsFailure_;
    ULONG references_ = 1;
};

} // namespace support
