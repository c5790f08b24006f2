#include "support/host_font.h"

#include "support/bstr.h"

#include <cwchar>
#include <iterator>

namespace support {

namespace {

constexpr const wchar_t* kNames[] = {L"Name", L"Size", L"Bold", L"Italic", L"Underline", L"Strikethrough"};
enum Member : DISPID { kName, kSize };

} // namespace

STDMETHODIMP HostFont::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    for (std::size_t i = 0; count == 1 && i < std::size(kNames); ++i)
        if (_wcsicmp(names[0], kNames[i]) == 0) {
            ids[0] = static_cast<DISPID>(i);
            return S_OK;
        }
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP HostFont::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                              UINT*) {
    VariantInit(result);
    if (id == kName) {
        V_VT(result) = VT_BSTR;
        V_BSTR(result) = SysAllocString(spec_.name.c_str());
    } else if (id == kSize) {
        V_VT(result) = VT_I4;
        V_I4(result) = spec_.size;
    } else {
        const bool flags[] = {spec_.bold, spec_.italic, spec_.underline, spec_.strikethrough};
        V_VT(result) = VT_BOOL;
        V_BOOL(result) = flags[id - kSize - 1] ? VARIANT_TRUE : VARIANT_FALSE;
    }
    return S_OK;
}

} // namespace support
