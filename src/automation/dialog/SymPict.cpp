#include "automation/dialog/SymPict.h"

#include "com/bstr.h"
#include "com/error_info.h"
#include "com/variant.h"

#include <algorithm>
#include <utility>

namespace dialog {

namespace {

/// In the order of the dispatch ids, which count from 1.
constexpr const wchar_t* kMembers[] = {L"DrawMode",    L"DrawWidth", L"DrawStyle", L"ForeColor",
                                       L"FillColor",   L"FillStyle", L"hDC",       L"ScaleWidth",
                                       L"ScaleHeight", L"Name",      L"Line"};
enum Member : DISPID {
    DrawMode = 1,
    DrawWidth,
    DrawStyle,
    ForeColor,
    FillColor,
    FillStyle,
    Context,
    ScaleWidth,
    ScaleHeight,
    Name,
    LineMethod
};

/// The properties that can be put, in the order of their dispatch ids.
constexpr LONG DrawingStyle::*kSettable[] = {&DrawingStyle::drawMode,  &DrawingStyle::drawWidth,
                                             &DrawingStyle::drawStyle, &DrawingStyle::foreColor,
                                             &DrawingStyle::fillColor, &DrawingStyle::fillStyle};

constexpr UINT kPlainArguments = 4; // two points
constexpr UINT kFullArguments = 6;  // flags, two points, colour

/// An argument counted from the first one; false when it is no whole number.
bool LongArgument(const DISPPARAMS& arguments, UINT index, LONG& value) {
    com::Variant number;
    if (FAILED(VariantChangeType(number.Get(), &arguments.rgvarg[arguments.cArgs - 1 - index], 0, VT_I4)))
        return false;
    value = V_I4(number.Get());
    return true;
}

} // namespace

void SymPict::Resize(SIZE size, int margin) {
    picture_.Resize(size);
    margin_ = margin;
}

SIZE SymPict::Scale() const {
    const SIZE size = picture_.Size();
    return {std::max(size.cx - 2 * margin_ - 1, 1L), std::max(size.cy - 2 * margin_ - 1, 1L)};
}

SymPict::~SymPict() {
    tools_.Release(picture_.Context());
}

SymPict::Drawing::Drawing(SymPict& box) : box_(box) {
    const HDC context = box_.picture_.Context();
    box_.tools_.Release(context); // nothing of ours is in the state that is saved
    saved_ = SaveDC(context);
    ++box_.drawings_;
}

SymPict::Drawing::Drawing(SymPict& box, SIZE offset) : Drawing(box) {
    const HDC context = box_.picture_.Context();
    SetViewportOrgEx(context, box_.margin_ + offset.cx, box_.margin_ + offset.cy, nullptr);
    box_.tools_.Select(context, box_.style_);
}

SymPict::Drawing::~Drawing() {
    RestoreDC(box_.picture_.Context(), saved_);
    if (--box_.drawings_ > 0)
        box_.SelectAgain();
}

void SymPict::SelectAgain() noexcept {
    try {
        tools_.Select(picture_.Context(), style_);
    } catch (...) {
        return; // the outer drawing goes on with stock objects
    }
}

STDMETHODIMP SymPict::GetTypeInfoCount(UINT* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP SymPict::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) {
    if (info == nullptr)
        return E_POINTER;
    *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP SymPict::GetIDsOfNames(REFIID /*iid*/, LPOLESTR* names, UINT count, LCID /*locale*/,
                                    DISPID* ids) {
    if (names == nullptr || ids == nullptr || count == 0)
        return E_INVALIDARG;
    std::fill(ids, ids + count, DISPID_UNKNOWN); // no member has named arguments
    for (DISPID id = DrawMode; id <= LineMethod; ++id)
        if (CompareStringOrdinal(kMembers[id - 1], -1, names[0], -1, TRUE) == CSTR_EQUAL)
            ids[0] = id;
    return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
}

STDMETHODIMP SymPict::Invoke(DISPID id, REFIID /*iid*/, LCID /*locale*/, WORD flags, DISPPARAMS* arguments,
                             VARIANT* result, EXCEPINFO* /*exception*/, UINT* /*badArgument*/) {
    if (id < DrawMode || id > LineMethod)
        return DISP_E_MEMBERNOTFOUND;
    if (arguments == nullptr)
        return E_INVALIDARG;
    HRESULT status = DISP_E_MEMBERNOTFOUND;
    const HRESULT guarded = com::Guard(IID_IDispatch, [&] {
        com::Variant ignored;
        if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0)
            status = Put(id, *arguments);
        else if (id == LineMethod)
            status = Line(*arguments);
        else
            status = Get(id, *arguments, result != nullptr ? *result : *ignored.Get());
    });
    return FAILED(guarded) ? guarded : status;
}

HRESULT SymPict::Put(DISPID id, const DISPPARAMS& arguments) {
    LONG value = 0;
    if (id > FillStyle)
        return DISP_E_MEMBERNOTFOUND;
    if (arguments.cArgs != 1)
        return DISP_E_BADPARAMCOUNT;
    if (!LongArgument(arguments, 0, value))
        return DISP_E_TYPEMISMATCH;
    DrawingStyle wanted = style_;
    wanted.*kSettable[id - 1] = value;
    tools_.Select(picture_.Context(), wanted);
    style_ = wanted;
    return S_OK;
}

HRESULT SymPict::Get(DISPID id, const DISPPARAMS& arguments, VARIANT& result) {
    if (arguments.cArgs != 0)
        return DISP_E_BADPARAMCOUNT;
    VariantInit(&result);
    switch (id) {
    case Context: // handles fit 32 bits also in a 64-bit process
        V_VT(&result) = VT_I4;
        V_I4(&result) = static_cast<LONG>(reinterpret_cast<LONG_PTR>(picture_.Context()));
        break;
    case ScaleWidth:
    case ScaleHeight:
        V_VT(&result) = VT_R4;
        V_R4(&result) = static_cast<float>(id == ScaleWidth ? Scale().cx : Scale().cy);
        break;
    case Name:
        V_BSTR(&result) = com::NewBstr(u"SymPict");
        V_VT(&result) = VT_BSTR;
        break;
    default: V_VT(&result) = VT_I4; V_I4(&result) = style_.*kSettable[id - 1];
    }
    return S_OK;
}

HRESULT SymPict::Line(const DISPPARAMS& arguments) {
    if (arguments.cArgs != kPlainArguments && arguments.cArgs != kFullArguments)
        return DISP_E_BADPARAMCOUNT;
    const bool full = arguments.cArgs == kFullArguments;
    LONG coordinate[kPlainArguments] = {};
    for (UINT i = 0; i < kPlainArguments; ++i)
        if (!LongArgument(arguments, full ? i + 1 : i, coordinate[i]))
            return DISP_E_TYPEMISMATCH;
    DrawingStyle pen = style_;
    if (full && !LongArgument(arguments, kFullArguments - 1, pen.foreColor))
        return DISP_E_TYPEMISMATCH;
    const HDC context = picture_.Context();
    tools_.Select(context, pen);
    MoveToEx(context, coordinate[0], coordinate[1], nullptr);
    LineTo(context, coordinate[2], coordinate[3]);
    tools_.Select(context, style_);
    return S_OK;
}

} // namespace dialog
