#pragma once

#include "com/dual_object.h"
#include "qmath/polygon.h"

#include <QMath.h>

/// Public class CPolygon: a closed polygon.
class CPolygon final : public com::DualObject<CPolygon, _CPolygon> {
public:
    STDMETHODIMP SetPoints(_CPtList* list) override;
    STDMETHODIMP PtInside(LONG x, LONG y, VARIANT_BOOL* value) override;
    STDMETHODIMP RectTouches(LONG left, LONG top, LONG right, LONG bottom, VARIANT_BOOL* value) override;

private:
    qmath::Polygon polygon_;
};
