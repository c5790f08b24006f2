#pragma once

#include <windows.h>

#include <oaidl.h>

#include <cstdint>

/// A picture box that takes every property and changes nothing, so that a benchmark sees the library's own
/// work and the plain cost of late-bound calls. Lives on the stack; references are not counted.
class CountingBox final : public IDispatch {
public:
    explicit CountingBox(HDC context) : context_(context) {}

    std::int64_t Calls() const { return calls_; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* argumentError) override;

private:
    HDC context_;
    LONG values_[8] = {0, 0, R2_COPYPEN}; ///< in the order of the dispatch ids
    std::int64_t calls_ = 0;
};
