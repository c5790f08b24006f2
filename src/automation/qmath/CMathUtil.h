#pragma once

#include "com/dual_object.h"

#include <QMath.h>

/// Public class CMathUtil: rounding and angles.
class CMathUtil final : public com::DualObject<CMathUtil, _CMathUtil> {
public:
    STDMETHODIMP RoundToLong(double value, LONG* result) override;
    STDMETHODIMP RadToDeg(double angle, double* value) override;
    STDMETHODIMP MaxLong(LONG* value) override;
    STDMETHODIMP DegToRad(double angle, double* value) override;
    STDMETHODIMP Pi(double* value) override;
    STDMETHODIMP NormalizeAngle(double angle, double* value) override;
    STDMETHODIMP VectorAngle(double dx, double dy, double* value) override;
    STDMETHODIMP Distance(_CPt* pt1, _CPt* pt2, double* value) override;
    STDMETHODIMP RotatePoint(double* x, double* y, double angle) override;
};
