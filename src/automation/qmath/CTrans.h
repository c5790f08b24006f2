#pragma once

#include "com/dual_object.h"
#include "qmath/transform.h"

#include <QMath.h>

/// Public class CTrans: world coordinates to surface pixels and back.
class CTrans final : public com::DualObject<CTrans, _CTrans> {
public:
    STDMETHODIMP SetScale(double scale) override;
    STDMETHODIMP SetOffsetX(LONG value) override;
    STDMETHODIMP SetOffsetY(LONG value) override;
    STDMETHODIMP WorldToScreen(LONG* x, LONG* y) override;
    STDMETHODIMP PtWorldToScreen(_CPt** pt) override;
    STDMETHODIMP LengthToScreen(LONG* length) override;
    STDMETHODIMP FontSizeToScreen(double factor, SHORT size, LONG* value) override;
    STDMETHODIMP PtScreenToWorld(_CPt** pt) override;
    STDMETHODIMP get_Scale(double* value) override;
    STDMETHODIMP get_OffsetX(LONG* value) override;
    STDMETHODIMP get_OffsetY(LONG* value) override;

    const qmath::Transform& Value() const { return transform_; }

private:
    HRESULT QueryMore(REFIID iid, void** object) override;

    qmath::Transform transform_;
};
