#pragma once

#include "com/dual_object.h"
#include "qmath/point.h"

#include <QMath.h>

/// Public class CPt: one point.
class CPt final : public com::DualObject<CPt, _CPt> {
public:
    static com::ComPtr<CPt> CreateFrom(const qmath::Point& point);

    STDMETHODIMP get_X(LONG* value) override;
    STDMETHODIMP put_X(LONG value) override;
    STDMETHODIMP get_Y(LONG* value) override;
    STDMETHODIMP put_Y(LONG value) override;

private:
    qmath::Point point_;
};
