#include "automation/qmath/CMathUtil.h"

#include "automation/shared/point_access.h"
#include "base/checked.h"
#include "qmath/math_util.h"

STDMETHODIMP CMathUtil::RoundToLong(double value, LONG* result) {
    return Return(result, [&] { return base::RoundToLong(value); });
}

STDMETHODIMP CMathUtil::RadToDeg(double angle, double* value) {
    return Return(value, [&] { return qmath::RadToDeg(angle); });
}

STDMETHODIMP CMathUtil::MaxLong(LONG* value) {
    return Return(value, [&] { return qmath::kMaxLong; });
}

STDMETHODIMP CMathUtil::DegToRad(double angle, double* value) {
    return Return(value, [&] { return qmath::DegToRad(angle); });
}

STDMETHODIMP CMathUtil::Pi(double* value) {
    return Return(value, [&] { return qmath::kPi; });
}

STDMETHODIMP CMathUtil::NormalizeAngle(double angle, double* value) {
    return Return(value, [&] { return qmath::NormalizeAngle(angle); });
}

STDMETHODIMP CMathUtil::VectorAngle(double dx, double dy, double* value) {
    return Return(value, [&] { return qmath::VectorAngle(dx, dy); });
}

STDMETHODIMP CMathUtil::Distance(_CPt* pt1, _CPt* pt2, double* value) {
    return Return(value, [&] {
        const com::ComPtr<_CPt> from(pt1);
        const com::ComPtr<_CPt> to(pt2);
        return qmath::Distance(GetPoint(pt1), GetPoint(pt2));
    });
}

STDMETHODIMP CMathUtil::RotatePoint(double* x, double* y, double angle) {
    return Do([&] { qmath::RotatePoint(com::Out(x), com::Out(y), angle); });
}
