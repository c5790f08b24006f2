#pragma once

#include "com/dual_object.h"
#include "qmath/matrix.h"

#include <QMath.h>

/// Public class CMatrix: an affine matrix whose operations act in call order.
class CMatrix final : public com::DualObject<CMatrix, _CMatrix> {
public:
    STDMETHODIMP Reset() override;
    STDMETHODIMP Rotate(double sine, double cosine) override;
    STDMETHODIMP Scale(double sx, double sy) override;
    STDMETHODIMP Translate(double dx, double dy) override;
    STDMETHODIMP ApplyX(double x, double y, double* value) override;
    STDMETHODIMP ApplyY(double x, double y, double* value) override;

private:
    qmath::Matrix matrix_;
};
