#include "automation/qsymbol/CSymElementColl.h"

#include "automation/objects/element_access.h"
#include "automation/objects/host_surface.h"
#include "automation/objects/host_transformation.h"
#include "automation/qsymbol/CSymElement.h"
#include "automation/qsymbol/object_list.h"
#include "qsymbol/draw/element_drawing.h"
#include "qsymbol/draw/surface_constants.h"

#include <algorithm>

namespace {

bool IsOwn(const com::ComPtr<_CSymElement>& element) {
    return static_cast<bool>(com::Own<CSymElement>(*element.Get()));
}

} // namespace

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
        Append(std::move(element));
    });
}

STDMETHODIMP CSymElementColl::RemoveOnPos(LONG lPos) {
    return Do([&] { elements_.RemoveByPos(lPos); });
}

STDMETHODIMP CSymElementColl::Draw(IDispatch* ctrl, _CTrans* Trans) {
    return Do([&] {
        if (ctrl == nullptr || elements_.Count() == 0)
            return;
        const com::ComPtr<_CTrans> held(Trans);
        HostSurface surface(*ctrl);
        const Elements elements = Snapshot();
        if (Trans != nullptr && std::all_of(elements.begin(), elements.end(), IsOwn)) {
            qsymbol::DrawElements(
                elements.size(), [&](std::size_t i) { return ToDrawing(*elements[i].Get()); }, surface,
                HostTransformation(*Trans));
            return;
        }
        // An element of the host's own making may draw as it likes.
        surface.PutDrawMode(qsymbol::kDrawModeCopy);
        for (const com::ComPtr<_CSymElement>& element : elements)
            com::Call(*element, &_CSymElement::Draw, ctrl, Trans);
    });
}

STDMETHODIMP CSymElementColl::DrawTracker(IDispatch* ctrl, _CTrans* Trans) {
    return Do([&] {
        const com::ComPtr<IDispatch> heldControl(ctrl);
        const com::ComPtr<_CTrans> heldTrans(Trans);
        for (const com::ComPtr<_CSymElement>& element : Snapshot())
            com::Call(*element, &_CSymElement::DrawTracker, ctrl, Trans);
    });
}

STDMETHODIMP CSymElementColl::ObjIdentByPt(_CTrans* Trans, LONG lScreenX, LONG lScreenY,
                                           _CSymElement** value) {
    return Return(value, [&]() -> _CSymElement* {
        const com::ComPtr<_CTrans> held(Trans);
        Elements elements = Snapshot();
        for (auto element = elements.rbegin(); element != elements.rend(); ++element) {
            VARIANT_BOOL hit = VARIANT_FALSE;
            com::Call(**element, &_CSymElement::ObjIdentByPt, Trans, lScreenX, lScreenY, &hit);
            if (hit != VARIANT_FALSE)
                return element->Detach();
        }
        return nullptr;
    });
}

STDMETHODIMP CSymElementColl::ObjIdentByRect(_CTrans* Trans, _CRect** ScreenIdentRect,
                                             _CSymElementColl** value) {
    return Return(value, [&]() -> _CSymElementColl* {
        const com::ComPtr<_CTrans> held(Trans);
        com::ComPtr<CSymElementColl> found;
        for (const com::ComPtr<_CSymElement>& element : Snapshot()) {
            VARIANT_BOOL hit = VARIANT_FALSE;
            com::Call(*element, &_CSymElement::ObjIdentByRect, Trans, ScreenIdentRect, &hit);
            if (hit == VARIANT_FALSE)
                continue;
            if (!found)
                found = Create();
            found->elements_.Append(element);
        }
        return found.Detach();
    });
}

STDMETHODIMP CSymElementColl::PtIdent(_CTrans* Trans, LONG lScreenX, LONG lScreenY, _CSymElement** SymElem,
                                      _CPt** Pt, VARIANT_BOOL* value) {
    return Return(value, [&] {
        object_list::TakeOver(SymElem).Reset();
        object_list::TakeOver(Pt).Reset();
        const com::ComPtr<_CTrans> held(Trans);
        Elements elements = Snapshot();
        for (auto element = elements.rbegin(); element != elements.rend() && *Pt == nullptr; ++element) {
            com::ComPtr<_CPt> found;
            com::Call(**element, &_CSymElement::PtIdent, Trans, lScreenX, lScreenY, found.Put());
            if (!found)
                continue;
            *Pt = found.Detach();
            *SymElem = element->Detach();
        }
        return VARIANT_FALSE; // also when a point was found: callers look at Pt
    });
}

CSymElementColl::Elements CSymElementColl::Snapshot() const {
    Elements elements;
    for (std::int32_t i = 1; i <= elements_.Count(); ++i)
        elements.push_back(*elements_.ItemByPos(i));
    return elements;
}
