#include "picture_box.h"

#include <olectl.h>

#include <algorithm>

namespace {

constexpr const wchar_t* kNames[] = {L"DrawMode",    L"ForeColor", L"FillColor", L"FillStyle",
                                     L"DrawStyle",   L"DrawWidth", L"hDC",       L"ScaleWidth",
                                     L"ScaleHeight", L"Name",      L"Line"};

// Values of DrawStyle; 0 to 4 are the GDI's solid, dashed and dotted pens.
constexpr LONG kInvisible = 5;
constexpr LONG kInsideFrame = 6;
// Values of FillStyle; from 2 on the GDI's hatches.
constexpr LONG kSolid = 0;
constexpr LONG kHollow = 1;

int PenStyle(LONG drawStyle, LONG width) {
    switch (drawStyle) {
    case kInvisible: return PS_NULL;
    case kInsideFrame: return PS_INSIDEFRAME;
    default: return width > 1 ? PS_SOLID : static_cast<int>(drawStyle); // only thin lines can be dashed
    }
}

} // namespace

Ptr<PictureBox> PictureBox::Create(HDC dc, int width, int height, std::wstring name, int thinnest) {
    return Ptr(new PictureBox(dc, width, height, std::move(name), thinnest));
}

PictureBox::PictureBox(HDC dc, int width, int height, std::wstring name, int thinnest)
    : dc_(dc), savedState_(SaveDC(dc)), width_(width), height_(height), name_(std::move(name)),
      thinnest_(thinnest) {
    for (DISPID id = DrawMode; id <= DrawWidth; ++id)
        Apply(id);
}

PictureBox::~PictureBox() {
    RestoreDC(dc_, savedState_);
    DeleteObject(pen_);
    DeleteObject(brush_);
}

STDMETHODIMP PictureBox::QueryInterface(REFIID id, void** object) {
    const bool known = id == IID_IUnknown || id == IID_IDispatch;
    *object = known ? this : nullptr;
    if (known)
        AddRef();
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) PictureBox::AddRef() {
    return ++references_;
}

STDMETHODIMP_(ULONG) PictureBox::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP PictureBox::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

STDMETHODIMP PictureBox::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP PictureBox::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    const auto isAsked = [names](const wchar_t* name) {
        return CompareStringOrdinal(name, -1, names[0], -1, TRUE) == CSTR_EQUAL; // whatever the case
    };
    const auto* found = std::find_if(std::begin(kNames), std::end(kNames), isAsked);
    std::fill_n(ids, count, DISPID_UNKNOWN);
    if (found == std::end(kNames) || count != 1) // the properties have no named arguments
        return DISP_E_UNKNOWNNAME;
    ids[0] = static_cast<DISPID>(found - kNames);
    return S_OK;
}

STDMETHODIMP PictureBox::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                                EXCEPINFO*, UINT*) {
    if (flags & DISPATCH_PROPERTYPUT)
        return arguments->cArgs == 1 ? Put(id, arguments->rgvarg[0]) : DISP_E_BADPARAMCOUNT;
    if (id == Line)
        return DrawLine(*arguments);
    if (arguments->cArgs != 0 || result == nullptr)
        return DISP_E_BADPARAMCOUNT;
    return Get(id, *result);
}

HRESULT PictureBox::Get(DISPID id, VARIANT& result) const {
    VariantInit(&result);
    if (id >= DrawMode && id <= HDc) {
        V_VT(&result) = VT_I4;
        // A handle has 32 significant bits in 64-bit programs as well.
        V_I4(&result) = id == HDc ? static_cast<LONG>(reinterpret_cast<LONG_PTR>(dc_)) : values_[id];
    } else if (id == ScaleWidth || id == ScaleHeight) {
        V_VT(&result) = VT_R4;
        V_R4(&result) = static_cast<float>(id == ScaleWidth ? width_ : height_);
    } else if (id == Name) {
        V_VT(&result) = VT_BSTR;
        V_BSTR(&result) = SysAllocStringLen(name_.data(), static_cast<UINT>(name_.size()));
    } else {
        return DISP_E_MEMBERNOTFOUND;
    }
    return S_OK;
}

HRESULT PictureBox::Put(DISPID id, VARIANT& value) {
    if (id < DrawMode || id > DrawWidth)
        return DISP_E_MEMBERNOTFOUND;
    VARIANT number;
    VariantInit(&number);
    const HRESULT status = VariantChangeType(&number, &value, 0, VT_I4);
    if (FAILED(status))
        return status;
    if (values_[id] != V_I4(&number)) {
        values_[id] = V_I4(&number);
        Apply(id);
    }
    return S_OK;
}

/// From one pixel to another, in the pen and the draw mode of the moment.
HRESULT PictureBox::DrawLine(const DISPPARAMS& arguments) const {
    LONG ends[4];
    if (arguments.cArgs != std::size(ends))
        return DISP_E_BADPARAMCOUNT;
    for (UINT i = 0; i < arguments.cArgs; ++i) {
        VARIANT number;
        VariantInit(&number);
        // The last argument comes first.
        const HRESULT status =
            VariantChangeType(&number, &arguments.rgvarg[arguments.cArgs - 1 - i], 0, VT_I4);
        if (FAILED(status))
            return status;
        ends[i] = V_I4(&number);
    }
    MoveToEx(dc_, ends[0], ends[1], nullptr);
    LineTo(dc_, ends[2], ends[3]);
    return S_OK;
}

void PictureBox::Apply(DISPID id) {
    switch (id) {
    case DrawMode: SetROP2(dc_, static_cast<int>(values_[DrawMode])); break; // numbered as the GDI does
    case ForeColor: SetTextColor(dc_, Colour(ForeColor)); [[fallthrough]];
    case DrawStyle:
    case DrawWidth: UsePen(); break;
    default: UseBrush(); break;
    }
}

void PictureBox::UsePen() {
    const int width = std::max(static_cast<int>(values_[DrawWidth]), thinnest_);
    // CreatePen gives thick lines round ends and corners.
    Select(pen_, CreatePen(PenStyle(values_[DrawStyle], width), width, Colour(ForeColor)));
}

void PictureBox::UseBrush() {
    const COLORREF colour = Colour(FillColor);
    switch (const LONG style = values_[FillStyle]) {
    case kSolid: Select(brush_, CreateSolidBrush(colour)); break;
    case kHollow: Select(brush_, GetStockObject(NULL_BRUSH)); break;
    default: Select(brush_, CreateHatchBrush(static_cast<int>(style) - 2, colour)); break;
    }
}

COLORREF PictureBox::Colour(Property property) const {
    COLORREF colour = 0; // an OLE colour may name a colour of the system
    OleTranslateColor(static_cast<OLE_COLOR>(values_[property]), nullptr, &colour);
    return colour;
}

/// Selects the next pen or brush and deletes the one that it replaces; stock objects survive that.
void PictureBox::Select(HGDIOBJ& current, HGDIOBJ next) {
    SelectObject(dc_, next);
    DeleteObject(current);
    current = next;
}
