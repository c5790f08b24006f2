#include "automation/qsymbol/CSymElement.h"

#include "automation/qsymbol/element_access.h"
#include "automation/qsymbol/font_access.h"
#include "automation/qsymbol/host_surface.h"
#include "automation/qsymbol/host_transformation.h"
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
        _CSymElement& source = com::Required(obj);
        qsymbol::ElementRecord values = GetElementValues(source);
        com::ComPtr<IFontDisp> font = NewStdFont(GetFont(ElementFont(source).Get()));
        com::Check(com::Required(ptList_.Get()).CopyPoints(ElementPoints(source).Get()));
        values_ = std::move(values);
        txtFont_ = std::move(font);
    });
}

STDMETHODIMP CSymElement::Draw(IDispatch* ctrl, _CTrans* Trans) {
    return Do([&] {
        if (ctrl == nullptr || Trans == nullptr || !ptList_)
            return;
        HostSurface surface(*ctrl);
        qsymbol::DrawElement(ToDrawing(*this), surface, HostTransformation(*Trans));
    });
}

STDMETHODIMP CSymElement::DrawTracker(IDispatch* ctrl, _CTrans* Trans) {
    return Do([&] {
        if (ctrl == nullptr || Trans == nullptr || !ptList_)
            return;
        HostSurface surface(*ctrl);
        qsymbol::DrawTracker(GetPoints(ptList_.Get()), surface, HostTransformation(*Trans));
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
