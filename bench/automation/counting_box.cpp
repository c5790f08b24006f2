#include "automation/counting_box.h"

#include <cwchar>

namespace {

enum Member : DISPID { Context = 1, Name, DrawMode, ForeColor, DrawWidth, DrawStyle, FillColor, FillStyle };

constexpr const wchar_t* kNames[] = {L"hDC",       L"Name",      L"DrawMode",  L"ForeColor",
                                     L"DrawWidth", L"DrawStyle", L"FillColor", L"FillStyle"};

} // namespace

STDMETHODIMP CountingBox::QueryInterface(REFIID iid, void** object) {
    *object = iid == IID_IUnknown || iid == IID_IDispatch ? this : nullptr;
    return *object != nullptr ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP CountingBox::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

STDMETHODIMP CountingBox::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) {
    *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP CountingBox::GetIDsOfNames(REFIID /*iid*/, LPOLESTR* names, UINT /*count*/, LCID /*locale*/,
                                        DISPID* ids) {
    ++calls_;
    for (DISPID id = Context; id <= FillStyle; ++id) {
        if (std::wcscmp(names[0], kNames[id - 1]) == 0) {
            *ids = id;
            return S_OK;
        }
    }
    *ids = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP CountingBox::Invoke(DISPID id, REFIID /*iid*/, LCID /*locale*/, WORD flags,
                                 DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* /*exception*/,
                                 UINT* /*argumentError*/) {
    ++calls_;
    if ((flags & DISPATCH_PROPERTYPUT) != 0) {
        values_[id - 1] = V_I4(&arguments->rgvarg[0]);
        return S_OK;
    }
    V_VT(result) = VT_I4;
    switch (id) {
    case Context: V_I4(result) = static_cast<LONG>(reinterpret_cast<LONG_PTR>(context_)); break;
    case Name:
        V_VT(result) = VT_BSTR;
        V_BSTR(result) = SysAllocString(L"PlanBox");
        break;
    default: V_I4(result) = values_[id - 1];
    }
    return S_OK;
}
