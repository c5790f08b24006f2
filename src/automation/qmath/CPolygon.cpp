#include "automation/qmath/CPolygon.h"

#include "automation/shared/point_access.h"

STDMETHODIMP CPolygon::SetPoints(_CPtList* list) {
    return Do([&] {
        const com::ComPtr<_CPtList> held(list);
        polygon_ = qmath::Polygon(GetPoints(list));
    });
}

STDMETHODIMP CPolygon::PtInside(LONG x, LONG y, VARIANT_BOOL* value) {
    return Return(value, [&] { return polygon_.PtInside({x, y}) ? VARIANT_TRUE : VARIANT_FALSE; });
}

STDMETHODIMP CPolygon::RectTouches(LONG left, LONG top, LONG right, LONG bottom, VARIANT_BOOL* value) {
    return Return(value, [&] {
        return polygon_.Meets({left, top, right, bottom}) ? VARIANT_TRUE : VARIANT_FALSE;
    });
}
