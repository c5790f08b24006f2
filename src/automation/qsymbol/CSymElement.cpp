#include "automation/qsymbol/CSymElement.h"

#include "automation/objects/element_access.h"
#include "automation/objects/font_access.h"
#include "automation/objects/host_surface.h"
#include "automation/objects/host_transformation.h"
#include "automation/objects/math_objects.h"
#include "automation/qsymbol/library.h"
#include "automation/shared/point_access.h"
#include "com/bstr.h"
#include "qsymbol/draw/element_drawing.h"

#include <utility>

namespace {

/// What the element's own hit tests have to say in this version.
void SayNotImplemented() {
    library::Prompt().Inform(u"Funktion noch nicht implementiert!");
}

} // namespace

CSymElement::CSymElement() {
    library::EnsureResources();
}

com::ComPtr<CSymElement> CSymElement::CreateFrom(qsymbol::ElementRecord record) {
    com::ComPtr<CSymElement> element = Create();
    element->ptList_ = math_objects::NewPointList(record.points);
    if (record.type == qsymbol::ElementType::Text)
        element->txtFont_ = NewStdFont(record.font.value_or(qsymbol::FontRecord{}));
    record.points.clear();
    record.font.reset();
    element->values_ = std::move(record);
    return element;
}

STDMETHODIMP CSymElement::get_Text(BSTR* value) {
    return Return(value, [&] { return com::NewBstr(values_.text); });
}

STDMETHODIMP CSymElement::put_Text(BSTR value) {
    return Do([&] { values_.text = com::Text(value); });
}

STDMETHODIMP CSymElement::get_PtList(_CPtList** value) {
    return Return(value, [&] { return com::ComPtr<_CPtList>(ptList_).Detach(); });
}

STDMETHODIMP CSymElement::putref_PtList(_CPtList* value) {
    return Do([&] { ptList_ = com::ComPtr<_CPtList>(value); });
}

STDMETHODIMP CSymElement::get_FillColor(LONG* value) {
    return Return(value, [&] { return values_.fillColor; });
}

STDMETHODIMP CSymElement::put_FillColor(LONG value) {
    return Do([&] { values_.fillColor = value; });
}

STDMETHODIMP CSymElement::get_MainColor(LONG* value) {
    return Return(value, [&] { return values_.mainColor; });
}

STDMETHODIMP CSymElement::put_MainColor(LONG value) {
    return Do([&] { values_.mainColor = value; });
}

STDMETHODIMP CSymElement::get_Radius(LONG* value) {
    return Return(value, [&] { return values_.radius; });
}

STDMETHODIMP CSymElement::put_Radius(LONG value) {
    return Do([&] { values_.radius = value; });
}

STDMETHODIMP CSymElement::get_TxtAngle(double* value) {
    return Return(value, [&] { return values_.textAngle; });
}

STDMETHODIMP CSymElement::put_TxtAngle(double value) {
    return Do([&] { values_.textAngle = value; });
}

STDMETHODIMP CSymElement::get_TxtBkMode(LONG* value) {
    return Return(value, [&] { return values_.textBkMode; });
}

STDMETHODIMP CSymElement::put_TxtBkMode(LONG value) {
    return Do([&] { values_.textBkMode = value; });
}

STDMETHODIMP CSymElement::get_TxtAlign(LONG* value) {
    return Return(value, [&] { return values_.textAlign; });
}

STDMETHODIMP CSymElement::put_TxtAlign(LONG value) {
    return Do([&] { values_.textAlign = value; });
}

STDMETHODIMP CSymElement::get_TxtFont(IFontDisp** value) {
    return Return(value, [&] { return com::ComPtr<IFontDisp>(txtFont_).Detach(); });
}

STDMETHODIMP CSymElement::putref_TxtFont(IFontDisp* value) {
    return Do([&] { txtFont_ = com::ComPtr<IFontDisp>(value); });
}

STDMETHODIMP CSymElement::get_LineWidth(LONG* value) {
    return Return(value, [&] { return values_.lineWidth; });
}

STDMETHODIMP CSymElement::put_LineWidth(LONG value) {
    return Do([&] { values_.lineWidth = value; });
}

STDMETHODIMP CSymElement::get_LineClosed(VARIANT_BOOL* value) {
    return Return(value, [&] { return values_.lineClosed ? VARIANT_TRUE : VARIANT_FALSE; });
}

STDMETHODIMP CSymElement::put_LineClosed(VARIANT_BOOL value) {
    return Do([&] { values_.lineClosed = value != VARIANT_FALSE; });
}

STDMETHODIMP CSymElement::get_ElementType(SymElementTypeConstants* value) {
    return Return(value, [&] { return static_cast<SymElementTypeConstants>(values_.type); });
}

STDMETHODIMP CSymElement::put_ElementType(SymElementTypeConstants value) {
    return Do([&] { values_.type = static_cast<qsymbol::ElementType>(value); });
}

STDMETHODIMP CSymElement::Init() {
    return Do([&] {
        values_ = {};
        ptList_.Reset();
        txtFont_.Reset();
    });
}

STDMETHODIMP CSymElement::CopyFrom(_CSymElement* obj) {
    return Do([&] {
        // Value by value: what was copied before a failure stays.
        const com::ComPtr<_CSymElement> held(&com::Required(obj));
        _CSymElement& source = *held.Get();
        values_.text = com::GetText(source, &_CSymElement::get_Text);
        const com::ComPtr<_CPtList> points = ptList_;
        com::Call(com::Required(points.Get()), &_CPtList::CopyPoints, ElementPoints(source).Get());
        values_.fillColor = com::Get(source, &_CSymElement::get_FillColor);
        values_.mainColor = com::Get(source, &_CSymElement::get_MainColor);
        values_.radius = com::Get(source, &_CSymElement::get_Radius);
        values_.textAngle = com::Get(source, &_CSymElement::get_TxtAngle);
        values_.textBkMode = com::Get(source, &_CSymElement::get_TxtBkMode);
        values_.textAlign = com::Get(source, &_CSymElement::get_TxtAlign);
        txtFont_ = NewStdFont(GetFont(ElementFont(source).Get()));
        values_.lineWidth = com::Get(source, &_CSymElement::get_LineWidth);
        values_.lineClosed = com::Get(source, &_CSymElement::get_LineClosed) != VARIANT_FALSE;
        values_.type = static_cast<qsymbol::ElementType>(com::Get(source, &_CSymElement::get_ElementType));
    });
}

STDMETHODIMP CSymElement::Draw(IDispatch* ctrl, _CTrans* Trans) {
    return Do([&] {
        if (ctrl == nullptr || Trans == nullptr || !ptList_)
            return;
        const HostTransformation transformation(*Trans);
        HostSurface surface(*ctrl);
        qsymbol::DrawElement(ToDrawing(*this), surface, transformation);
    });
}

STDMETHODIMP CSymElement::DrawTracker(IDispatch* ctrl, _CTrans* Trans) {
    return Do([&] {
        if (ctrl == nullptr || Trans == nullptr || !ptList_)
            return;
        const HostTransformation transformation(*Trans);
        HostSurface surface(*ctrl);
        const com::ComPtr<_CPtList> points = ptList_;
        qsymbol::DrawTracker(GetPoints(points.Get()), surface, transformation);
    });
}

STDMETHODIMP CSymElement::ObjIdentByPt(_CTrans* /*Trans*/, LONG /*lScreenX*/, LONG /*lScreenY*/,
                                       VARIANT_BOOL* value) {
    return Return(value, [] {
        SayNotImplemented();
        return VARIANT_FALSE;
    });
}

STDMETHODIMP CSymElement::ObjIdentByRect(_CTrans* /*Trans*/, _CRect** /*ScreenIdentRect*/,
                                         VARIANT_BOOL* value) {
    return Return(value, [] {
        SayNotImplemented();
        return VARIANT_FALSE;
    });
}

STDMETHODIMP CSymElement::PtIdent(_CTrans* /*Trans*/, LONG /*lScreenX*/, LONG /*lScreenY*/, _CPt** value) {
    return Return(value, []() -> _CPt* {
        SayNotImplemented();
        return nullptr;
    });
}
