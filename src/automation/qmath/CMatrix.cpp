#include "automation/qmath/CMatrix.h"

STDMETHODIMP CMatrix::Reset() {
    return Do([&] { matrix_.Reset(); });
}

STDMETHODIMP CMatrix::Rotate(double sine, double cosine) {
    return Do([&] { matrix_.Rotate(sine, cosine); });
}

STDMETHODIMP CMatrix::Scale(double sx, double sy) {
    return Do([&] { matrix_.Scale(sx, sy); });
}

STDMETHODIMP CMatrix::Translate(double dx, double dy) {
    return Do([&] { matrix_.Translate(dx, dy); });
}

STDMETHODIMP CMatrix::ApplyX(double x, double y, double* value) {
    return Return(value, [&] { return matrix_.ApplyX(x, y); });
}

STDMETHODIMP CMatrix::ApplyY(double x, double y, double* value) {
    return Return(value, [&] { return matrix_.ApplyY(x, y); });
}
