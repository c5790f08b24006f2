#pragma once

#include "com/dual_object.h"
#include "qsymbol/model/keyed_list.h"

#include <QSymbol.h>

#include <vector>

/// Public class CSymElementColl: the elements of a symbol in drawing order.
class CSymElementColl final : public com::DualObject<CSymElementColl, _CSymElementColl> {
public:
    void Append(com::ComPtr<_CSymElement> element) { elements_.Append(std::move(element)); }

    STDMETHODIMP get_Count(LONG* value) override;
    STDMETHODIMP get_ItemByPos(LONG lPos, _CSymElement** value) override;
    STDMETHODIMP get_NewEnum(IUnknown** value) override;
    STDMETHODIMP Clear() override;
    STDMETHODIMP AppendRef(_CSymElement** o) override;
    STDMETHODIMP RemoveOnPos(LONG lPos) override;
    STDMETHODIMP Draw(IDispatch* ctrl, _CTrans* Trans) override;
    STDMETHODIMP DrawTracker(IDispatch* ctrl, _CTrans* Trans) override;
    STDMETHODIMP ObjIdentByPt(_CTrans* Trans, LONG lScreenX, LONG lScreenY, _CSymElement** value) override;
    STDMETHODIMP ObjIdentByRect(_CTrans* Trans, _CRect** ScreenIdentRect, _CSymElementColl** value) override;
    STDMETHODIMP PtIdent(_CTrans* Trans, LONG lScreenX, LONG lScreenY, _CSymElement** SymElem, _CPt** Pt,
                         VARIANT_BOOL* value) override;

private:
    using Elements = std::vector<com::ComPtr<_CSymElement>>;

    /// The elements as they are now; asking them may show boxes, and the host may change the list meanwhile.
    Elements Snapshot() const;

    qsymbol::KeyedList<com::ComPtr<_CSymElement>> elements_;
};
