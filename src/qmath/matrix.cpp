#include "qmath/matrix.h"

namespace qmath {

namespace {

void RotatePair(double& x, double& y, double sine, double cosine) {
    const double turnedX = x * cosine - y * sine;
    y = x * sine + y * cosine;
    x = turnedX;
}

} // namespace

void Matrix::Reset() {
    *this = Matrix();
}

void Matrix::Rotate(double sine, double cosine) {
    RotatePair(xx_, yx_, sine, cosine);
    RotatePair(xy_, yy_, sine, cosine);
    RotatePair(dx_, dy_, sine, cosine);
}

void Matrix::Scale(double sx, double sy) {
    xx_ *= sx;
    xy_ *= sx;
    dx_ *= sx;
    yx_ *= sy;
    yy_ *= sy;
    dy_ *= sy;
}

void Matrix::Translate(double dx, double dy) {
    dx_ += dx;
    dy_ += dy;
}

} // namespace qmath
