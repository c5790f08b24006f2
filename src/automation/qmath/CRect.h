#pragma once

#include "com/dual_object.h"

#include <QMath.h>

/// Public class CRect: an axis-parallel rectangle.
class CRect final : public com::DualObject<CRect, _CRect> {
public:
    STDMETHODIMP get_Left(LONG* value) override;
    STDMETHODIMP put_Left(LONG value) override;
    STDMETHODIMP get_Top(LONG* value) override;
    STDMETHODIMP put_Top(LONG value) override;
    STDMETHODIMP get_Right(LONG* value) override;
    STDMETHODIMP put_Right(LONG value) override;
    STDMETHODIMP get_Bottom(LONG* value) override;
    STDMETHODIMP put_Bottom(LONG value) override;

private:
    LONG left_ = 0;
    LONG top_ = 0;
    LONG right_ = 0;
    LONG bottom_ = 0;
};
