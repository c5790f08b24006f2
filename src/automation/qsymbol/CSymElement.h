#pragma once

#include "com/dual_object.h"
#include "qsymbol/model/element_record.h"

#include <QSymbol.h>

/// Public class CSymElement: one element of a symbol in its editable form.
class CSymElement final : public com::DualObject<CSymElement, _CSymElement> {
public:
    CSymElement();

    /// A new element with the record's values, a point list and, for a text, a font of its own.
    static com::ComPtr<CSymElement> CreateFrom(qsymbol::ElementRecord record);

    STDMETHODIMP get_Text(BSTR* value) override;
    STDMETHODIMP put_Text(BSTR value) override;
    STDMETHODIMP get_PtList(_CPtList** value) override;
    STDMETHODIMP putref_PtList(_CPtList* value) override;
    STDMETHODIMP get_FillColor(LONG* value) override;
    STDMETHODIMP put_FillColor(LONG value) override;
    STDMETHODIMP get_MainColor(LONG* value) override;
    STDMETHODIMP put_MainColor(LONG value) override;
    STDMETHODIMP get_Radius(LONG* value) override;
    STDMETHODIMP put_Radius(LONG value) override;
    STDMETHODIMP get_TxtAngle(double* value) override;
    STDMETHODIMP put_TxtAngle(double value) override;
    STDMETHODIMP get_TxtBkMode(LONG* value) override;
    STDMETHODIMP put_TxtBkMode(LONG value) override;
    STDMETHODIMP get_TxtAlign(LONG* value) override;
    STDMETHODIMP put_TxtAlign(LONG value) override;
    STDMETHODIMP get_TxtFont(IFontDisp** value) override;
    STDMETHODIMP putref_TxtFont(IFontDisp* value) override;
    STDMETHODIMP get_LineWidth(LONG* value) override;
    STDMETHODIMP put_LineWidth(LONG value) override;
    STDMETHODIMP get_LineClosed(VARIANT_BOOL* value) override;
    STDMETHODIMP put_LineClosed(VARIANT_BOOL value) override;
    STDMETHODIMP get_ElementType(SymElementTypeConstants* value) override;
    STDMETHODIMP put_ElementType(SymElementTypeConstants value) override;
    STDMETHODIMP Init() override;
    STDMETHODIMP CopyFrom(_CSymElement* obj) override;
    STDMETHODIMP Draw(IDispatch* ctrl, _CTrans* Trans) override;
    STDMETHODIMP DrawTracker(IDispatch* ctrl, _CTrans* Trans) override;
    STDMETHODIMP ObjIdentByPt(_CTrans* Trans, LONG lScreenX, LONG lScreenY, VARIANT_BOOL* value) override;
    STDMETHODIMP ObjIdentByRect(_CTrans* Trans, _CRect** ScreenIdentRect, VARIANT_BOOL* value) override;
    STDMETHODIMP PtIdent(_CTrans* Trans, LONG lScreenX, LONG lScreenY, _CPt** value) override;

private:
    qsymbol::ElementRecord values_; ///< all but points and font, which are the host's own objects
    com::ComPtr<_CPtList> ptList_;
    com::ComPtr<IFontDisp> txtFont_;
};
