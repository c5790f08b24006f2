#include "com/enumerator.h"

#include "com/error_info.h"
#include "com/module.h"
#include "com/unknown_object.h"

#include <windows.h>

#include <oleauto.h>

#include <algorithm>
#include <utility>

namespace com {

namespace {

class Enumerator final : public UnknownObject<IEnumVARIANT> {
public:
    Enumerator(ComPtr<IUnknown> collection, NextItem next, std::uint64_t cursor)
        : collection_(std::move(collection)), next_(std::move(next)), cursor_(cursor) {}

    STDMETHODIMP Next(ULONG count, VARIANT* items, ULONG* fetched) override {
        const ComPtr<IEnumVARIANT> self(this);
        ULONG got = 0;
        if (fetched != nullptr)
            *fetched = 0;
        if (items == nullptr)
            return E_POINTER;
        std::for_each(items, items + count, [](VARIANT& item) { VariantInit(&item); });
        const HRESULT status = Guard(IID_IEnumVARIANT, [&] {
            ComPtr<IDispatch> item;
            for (; got < count && next_(cursor_, item); ++got) {
                V_VT(&items[got]) = VT_DISPATCH;
                V_DISPATCH(&items[got]) = item.Detach();
            }
        });
        if (fetched != nullptr)
            *fetched = got;
        return FAILED(status) ? status : got == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) override {
        const ComPtr<IEnumVARIANT> self(this);
        bool complete = true;
        const HRESULT status = Guard(IID_IEnumVARIANT, [&] {
            ComPtr<IDispatch> item;
            for (ULONG i = 0; i < count && complete; ++i)
                complete = next_(cursor_, item);
        });
        return FAILED(status) ? status : complete ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override {
        cursor_ = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumVARIANT** copy) override {
        if (copy == nullptr)
            return E_POINTER;
        *copy = nullptr;
        return Guard(IID_IEnumVARIANT, [&] { *copy = NewEnumerator(collection_, next_, cursor_).Detach(); });
    }

private:
    ComPtr<IUnknown> collection_;
    NextItem next_;
    std::uint64_t cursor_;
};

} // namespace

ComPtr<IEnumVARIANT> NewEnumerator(ComPtr<IUnknown> collection, NextItem next, std::uint64_t cursor) {
    return ComPtr<IEnumVARIANT>::Attach(new Enumerator(std::move(collection), std::move(next), cursor));
}

} // namespace com
