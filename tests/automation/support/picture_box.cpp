#include "support/picture_box.h"

#include "support/control_type.h"
#include "support/failure.h"
#include "support/text.h"

#include <oleauto.h>

namespace support {

namespace {

constexpr LONG kSolidFill = 0;

/// The pen styles of the property DrawStyle, 0 to 6, are numbered as those of the GDI.
int PenStyle(LONG drawStyle) {
    return static_cast<int>(drawStyle);
}

} // namespace

PictureBox::PictureBox(Canvas& canvas, const std::wstring& name, const std::wstring& typeName)
    : canvas_(canvas), members_{{L"hDC", static_cast<LONG>(reinterpret_cast<LONG_PTR>(canvas.Context()))},
                                {L"Name", name},
                                {L"ScaleWidth", static_cast<float>(canvas.Width())},
                                {L"ScaleHeight", static_cast<float>(canvas.Height())},
                                {L"DrawMode", SHORT{R2_COPYPEN}},
                                {L"DrawWidth", SHORT{1}},
                                {L"DrawStyle", SHORT{0}},
                                {L"ForeColor", LONG{0}},
                                {L"FillColor", LONG{0}},
                                {L"FillStyle", SHORT{1}}},
      type_(MakeControlType(typeName)), firstPen_(GetCurrentObject(canvas.Context(), OBJ_PEN)),
      firstBrush_(GetCurrentObject(canvas.Context(), OBJ_BRUSH)) {
    Apply();
}

PictureBox::~PictureBox() {
    EXPECT_EQ(references_, 0U) << "the surface is still held";
    SelectObject(canvas_.Context(), firstPen_);
    SelectObject(canvas_.Context(), firstBrush_);
    DeleteObject(pen_);
    DeleteObject(brush_);
}

PictureBox::Member* PictureBox::Find(const std::wstring& name) {
    for (Member& member : members_)
        if (member.present && _wcsicmp(member.name.c_str(), name.c_str()) == 0)
            return &member;
    return nullptr;
}

void PictureBox::Remove(const std::wstring& member) {
    Find(member)->present = false;
}

void PictureBox::Set(const std::wstring& member, const Value& value) {
    if (Member* const found = Find(member))
        found->value = value;
    else
        members_.push_back({member, value, true});
    Apply();
}

LONG PictureBox::Number(const std::wstring& member) const {
    Value number = 0;
    for (const Member& candidate : members_) // also one that was taken away: the control itself still has it
        if (_wcsicmp(candidate.name.c_str(), member.c_str()) == 0)
            VariantChangeType(number.Raw(), const_cast<VARIANT*>(candidate.value.Raw()), 0, VT_I4);
    return number.Long();
}

std::vector<std::string> PictureBox::LogOf(const std::string& start) const {
    std::vector<std::string> lines;
    for (const std::string& line : log)
        if (line.starts_with(start))
            lines.push_back(line);
    return lines;
}

void PictureBox::Apply() {
    const HDC context = canvas_.Context();
    const HPEN pen = CreatePen(PenStyle(Number(L"DrawStyle")), static_cast<int>(Number(L"DrawWidth")),
                               static_cast<COLORREF>(Number(L"ForeColor")));
    const HBRUSH brush = Number(L"FillStyle") == kSolidFill
                             ? CreateSolidBrush(static_cast<COLORREF>(Number(L"FillColor")))
                             : static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
    SelectObject(context, pen);
    SelectObject(context, brush);
    DeleteObject(pen_);
    DeleteObject(brush_); // a stock object stays
    pen_ = pen;
    brush_ = brush;
    SetROP2(context, static_cast<int>(Number(L"DrawMode")));
    SetTextColor(context, static_cast<COLORREF>(Number(L"ForeColor")));
}

STDMETHODIMP PictureBox::QueryInterface(REFIID iid, void** object) {
    if (iid != IID_IUnknown && iid != IID_IDispatch) {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP PictureBox::GetTypeInfoCount(UINT* count) {
    *count = 1;
    return S_OK;
}

STDMETHODIMP PictureBox::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = type_.Get();
    if (*info == nullptr)
        return E_NOTIMPL;
    (*info)->AddRef();
    return S_OK;
}

STDMETHODIMP PictureBox::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
    const Member* const member = Find(names[0]);
    ids[0] = member == nullptr ? DISPID_UNKNOWN : static_cast<DISPID>(member - members_.data()) + 1;
    return member == nullptr ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT PictureBox::Use(const std::string& use, EXCEPINFO* exception) {
    log.push_back(use);
    if (onUse)
        onUse(use);
    for (const auto& [start, failure] : failures_) {
        if (!use.starts_with(start))
            continue;
        *exception = {};
        exception->wCode = static_cast<WORD>(failure.number);
        exception->scode = failure.status;
        exception->bstrSource = SysAllocString(failure.source.c_str());
        exception->bstrDescription = SysAllocString(failure.description.c_str());
        return DISP_E_EXCEPTION;
    }
    return S_OK;
}

STDMETHODIMP PictureBox::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                                EXCEPINFO* exception, UINT*) {
    const auto index = static_cast<std::size_t>(id) - 1;
    if (index >= members_.size() || !members_[index].present)
        return DISP_E_MEMBERNOTFOUND;
    const std::string name = Narrow(members_[index].name);
    if ((flags & DISPATCH_PROPERTYPUT) != 0) {
        Value number;
        if (arguments->cArgs != 1 || FAILED(VariantChangeType(number.Raw(), &arguments->rgvarg[0], 0, VT_I4)))
            return DISP_E_TYPEMISMATCH;
        const HRESULT status = Use("put " + name + ' ' + std::to_string(number.Long()), exception);
        if (FAILED(status))
            return status;
        members_[index].value = number;
        Apply();
        return S_OK;
    }
    if (arguments->cArgs != 0)
        return DISP_E_BADPARAMCOUNT;
    const HRESULT status = Use("get " + name, exception);
    if (SUCCEEDED(status) && result != nullptr)
        VariantCopy(result, members_[index].value.Raw());
    return status;
}

} // namespace support
