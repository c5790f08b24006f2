#pragma once

namespace qmath {

/// An affine map of the plane, the identity at first. Each operation is applied after those already in it.
class Matrix {
public:
    void Reset();
    /// (x, y) becomes (x·cosine − y·sine, x·sine + y·cosine).
    void Rotate(double sine, double cosine);
    void Scale(double sx, double sy);
    void Translate(double dx, double dy);

    double ApplyX(double x, double y) const { return xx_ * x + xy_ * y + dx_; }
    double ApplyY(double x, double y) const { return yx_ * x + yy_ * y + dy_; }

private:
    double xx_ = 1;
    double xy_ = 0;
    double dx_ = 0;
    double yx_ = 0;
    double yy_ = 1;
    double dy_ = 0;
};

} // namespace qmath
