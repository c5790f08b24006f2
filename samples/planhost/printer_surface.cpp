#include "printer_surface.h"

Ptr<PrinterSurface> PrinterSurface::Create(HDC dc, int width, int height) {
    return Ptr(new PrinterSurface(dc, width, height));
}

STDMETHODIMP PrinterSurface::GetTypeInfoCount(UINT* count) {
    *count = 1;
    return S_OK;
}

/// A type library that is never written: all that is wanted of it is the name of the type.
STDMETHODIMP PrinterSurface::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
    *info = nullptr;
    if (index != 0)
        return DISP_E_BADINDEX;
    wchar_t name[] = L"Printer";
    Ptr<ICreateTypeLib2> library;
    Ptr<ICreateTypeInfo> type;
    HRESULT status =
        CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, L"Planhost.tlb", library.Put());
    if (SUCCEEDED(status))
        status = library->CreateTypeInfo(name, TKIND_DISPATCH, type.Put());
    if (SUCCEEDED(status))
        status = type->QueryInterface(IID_ITypeInfo, reinterpret_cast<void**>(info));
    return status;
}
