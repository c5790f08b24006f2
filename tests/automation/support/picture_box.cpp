#include "support/picture_box.h"

#include "support/text.h"

#include <oleauto.h>

#include <cmath>
#include <utility>

namespace support {

namespace {

/// The members in the order of their dispatch ids, counted from 1; those up to kLastSettable can be put.
constexpr const wchar_t* kMembers[] = {L"DrawMode",    L"ForeColor", L"FillColor", L"FillStyle",
                                       L"DrawStyle",   L"DrawWidth", L"hDC",       L"ScaleWidth",
                                       L"ScaleHeight", L"Name",      L"Line"};
enum Member : DISPID { kDrawWidth = 6, kHdc, kScaleWidth, kScaleHeight, kName, kLine };
constexpr DISPID kLastSettable = kDrawWidth;

const wchar_t* NameOf(DISPID id) {
    return kMembers[id - 1];
}

/// A type of that name in a type library that is never saved.
Ref<ITypeInfo> MakeType(const std::wstring& name) {
    Ref<ICreateTypeLib2> library;
    Ref<ICreateTypeInfo> type;
    if (SUCCEEDED(CreateTypeLib2(SYS_WIN64, L"picture_box.tlb", library.Put())))
        library->CreateTypeInfo(std::wstring(name).data(), TKIND_DISPATCH, type.Put());
    return type.As<ITypeInfo>();
}

std::string Number(const VARIANT& value) {
    VARIANT number;
    VariantInit(&number);
    if (FAILED(VariantChangeType(&number, const_cast<VARIANT*>(&value), 0, VT_I4)))
        return "?";
    return std::to_string(V_I4(&number));
}

BSTR NewText(const std::wstring& text) {
    return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

} // namespace

Ref<PictureBox> PictureBox::Create(Canvas& canvas, const std::wstring& name, const std::wstring& typeName) {
    return Ref<PictureBox>::Attach(new PictureBox(canvas, name, typeName));
}

PictureBox::PictureBox(Canvas& canvas, std::wstring name, const std::wstring& typeName)
    : canvas_(canvas), name_(std::move(name)), type_(MakeType(typeName)), scaleWidth_(canvas.Width()),
      scaleHeight_(canvas.Height()), values_{{L"DrawMode", R2_COPYPEN}, {L"ForeColor", 0},
                                             {L"FillColor", 0},         {L"FillStyle", 1},
                                             {L"DrawStyle", 0},         {L"DrawWidth", 1}} {
    Apply();
}

PictureBox::~PictureBox() {
    SelectObject(canvas_.Dc(), GetStockObject(BLACK_PEN));
    SelectObject(canvas_.Dc(), GetStockObject(WHITE_BRUSH));
    DeleteObject(pen_);
    DeleteObject(brush_);
}

std::vector<std::string> PictureBox::Logged(const std::string& beginning) const {
    std::vector<std::string> found;
    for (const std::string& access : log_)
        if (access.starts_with(beginning))
            found.push_back(access);
    return found;
}

LONG PictureBox::Property(const std::wstring& name) const {
    return values_.at(name);
}

void PictureBox::SetProperty(const std::wstring& name, LONG value) {
    values_.at(name) = value;
    Apply();
}

void PictureBox::SetScale(double width, double height) {
    scaleWidth_ = width;
    scaleHeight_ = height;
}

STDMETHODIMP PictureBox::QueryInterface(REFIID id, void** object) {
    const bool known = id == IID_IUnknown || id == IID_IDispatch;
    *object = known ? this : nullptr;
    if (known)
        AddRef();
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) PictureBox::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP PictureBox::GetTypeInfoCount(UINT* count) {
    *count = type_ ? 1 : 0;
    return S_OK;
}

STDMETHODIMP PictureBox::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = Ref<ITypeInfo>(type_).Get();
    if (!type_)
        return E_NOTIMPL;
    (*info)->AddRef();
    return S_OK;
}

STDMETHODIMP PictureBox::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
    for (DISPID id = 1; id <= kLine; ++id) {
        ids[0] = id;
        if (CompareStringOrdinal(NameOf(id), -1, names[0], -1, TRUE) == CSTR_EQUAL)
            return S_OK;
    }
    ids[0] = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
}

/// Logs an access; false when it is to fail, with the exception filled in.
bool PictureBox::Note(const std::string& access, EXCEPINFO* exception) {
    log_.push_back(access);
    if (const auto action = action_)
        action(access);
    for (const auto& [beginning, failure] : failures_) {
        if (!access.starts_with(beginning))
            continue;
        exception->scode = failure.status;
        exception->bstrSource = NewText(failure.source);
        exception->bstrDescription = NewText(failure.description);
        return false;
    }
    return true;
}

STDMETHODIMP PictureBox::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                                EXCEPINFO* exception, UINT*) {
    if (id < 1 || id > kLine)
        return DISP_E_MEMBERNOTFOUND;
    const Ref<PictureBox> alive(this);
    const std::string name = Narrow(NameOf(id));
    if (flags & DISPATCH_PROPERTYPUT) {
        if (id > kLastSettable || arguments->cArgs != 1)
            return DISP_E_MEMBERNOTFOUND;
        const std::string number = Number(arguments->rgvarg[0]);
        if (!Note("put " + name + " " + number, exception))
            return DISP_E_EXCEPTION;
        SetProperty(NameOf(id), std::stol(number));
        return S_OK;
    }
    if (id == kLine) {
        std::string access = "call Line";
        for (UINT i = arguments->cArgs; i-- > 0;)
            access += " " + Number(arguments->rgvarg[i]);
        return Note(access, exception) ? Line(*arguments) : DISP_E_EXCEPTION;
    }
    if (arguments->cArgs != 0 || result == nullptr)
        return DISP_E_BADPARAMCOUNT;
    if (!Note("get " + name, exception))
        return DISP_E_EXCEPTION;
    Get(id, *result);
    return S_OK;
}

void PictureBox::Get(DISPID id, VARIANT& result) const {
    VariantInit(&result);
    switch (id) {
    case kHdc:
        V_VT(&result) = VT_I4;
        V_I4(&result) = static_cast<LONG>(reinterpret_cast<LONG_PTR>(canvas_.Dc()));
        break;
    case kScaleWidth:
    case kScaleHeight:
        V_VT(&result) = VT_R4;
        V_R4(&result) = static_cast<float>(id == kScaleWidth ? scaleWidth_ : scaleHeight_);
        break;
    case kName:
        V_VT(&result) = VT_BSTR;
        V_BSTR(&result) = NewText(name_);
        break;
    default: V_VT(&result) = VT_I4; V_I4(&result) = values_.at(NameOf(id));
    }
}

HRESULT PictureBox::Line(const DISPPARAMS& arguments) {
    if (arguments.cArgs != lineArguments_)
        return DISP_E_BADPARAMCOUNT;
    // The six are flags, four coordinates and the colour; arguments come last first.
    const UINT before = lineArguments_ == 6 ? 1 : 0;
    const auto coordinate = [&](UINT i) {
        return std::stol(Number(arguments.rgvarg[arguments.cArgs - 1 - before - i]));
    };
    MoveToEx(canvas_.Dc(), coordinate(0), coordinate(1), nullptr);
    LineTo(canvas_.Dc(), coordinate(2), coordinate(3));
    return S_OK;
}

void PictureBox::Apply() {
    const HDC dc = canvas_.Dc();
    const LONG width = values_[L"DrawWidth"];
    const auto fore = static_cast<COLORREF>(values_[L"ForeColor"]);
    const auto fill = static_cast<COLORREF>(values_[L"FillColor"]);
    int style = static_cast<int>(values_[L"DrawStyle"]);
    if (style >= PS_DASH && style <= PS_DASHDOTDOT && width > 1)
        style = PS_SOLID; // only thin lines can be dashed
    // 0 to 4 are the GDI's solid and dashed pens, 5 its invisible one, 6 the one inside the frame.
    const HGDIOBJ pen = CreatePen(style, width, fore);
    const LONG fillStyle = values_[L"FillStyle"];
    const HGDIOBJ brush = fillStyle == 0   ? CreateSolidBrush(fill)
                          : fillStyle == 1 ? GetStockObject(NULL_BRUSH)
                                           : CreateHatchBrush(fillStyle - 2, fill);
    SelectObject(dc, pen);
    SelectObject(dc, brush);
    DeleteObject(std::exchange(pen_, pen));
    DeleteObject(std::exchange(brush_, brush));
    SetTextColor(dc, fore);
    SetROP2(dc, static_cast<int>(values_[L"DrawMode"]));
}

} // namespace support
