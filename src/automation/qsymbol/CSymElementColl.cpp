#include "automation/qsymbol/CSymElementColl.h"

#include "automation/qsymbol/library.h"
#include "automation/qsymbol/object_list.h"

STDMETHODIMP CSymElementColl::get_Count(LONG* value) {
    return Return(value, [&] { return elements_.Count(); });
}

STDMETHODIMP CSymElementColl::get_ItemByPos(LONG lPos, _CSymElement** value) {
    return Return(value, [&] { return object_list::Share(elements_.ItemByPos(lPos)); });
}

STDMETHODIMP CSymElementColl::get_NewEnum(IUnknown** value) {
    return Return(value,
                  [&] { return object_list::NewEnum(static_cast<_CSymElementColl*>(this), elements_); });
}

STDMETHODIMP CSymElementColl::Clear() {
    return Do([&] { elements_.Clear(); });
}

STDMETHODIMP CSymElementColl::AppendRef(_CSymElement** o) {
    return Do([&] {
        com::ComPtr<_CSymElement> element = object_list::TakeOver(o);
        com::Required(element.Get());
        elements_.Append(std::move(element));
    });
}

STDMETHODIMP CSymElementColl::RemoveOnPos(LONG lPos) {
    return Do([&] { elements_.RemoveByPos(lPos); });
}

STDMETHODIMP CSymElementColl::Draw(IDispatch* /*ctrl*/, _CTrans* /*Trans*/) {
    return Do([] { library::NotImplemented(u"CSymElementColl.Draw"); });
}

STDMETHODIMP CSymElementColl::DrawTracker(IDispatch* /*ctrl*/, _CTrans* /*Trans*/) {
    return Do([] { library::NotImplemented(u"CSymElementColl.DrawTracker"); });
}

STDMETHODIMP CSymElementColl::ObjIdentByPt(_CTrans* /*Trans*/, LONG /*lScreenX*/, LONG /*lScreenY*/,
                                           _CSymElement** /*value*/) {
    return Do([] { library::NotImplemented(u"CSymElementColl.ObjIdentByPt"); });
}

STDMETHODIMP CSymElementColl::ObjIdentByRect(_CTrans* /*Trans*/, _CRect** /*ScreenIdentRect*/,
                                             _CSymElementColl** /*value*/) {
    return Do([] { library::NotImplemented(u"CSymElementColl.ObjIdentByRect"); });
}

STDMETHODIMP CSymElementColl::PtIdent(_CTrans* /*Trans*/, LONG /*lScreenX*/, LONG /*lScreenY*/,
                                      _CSymElement** /*SymElem*/, _CPt** /*Pt*/, VARIANT_BOOL* /*value*/) {
    return Do([] { library::NotImplemented(u"CSymElementColl.PtIdent"); });
}
