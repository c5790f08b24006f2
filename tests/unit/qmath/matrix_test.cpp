#include "qmath/matrix.h"

#include "qmath/math_util.h"
#include "qmath/vector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>

namespace {

using qmath::Matrix;
using qmath::Vector;

Vector Applied(const Matrix& matrix, double x, double y) {
    return {matrix.ApplyX(x, y), matrix.ApplyY(x, y)};
}

TEST(Matrix, StartsAndResetsAsTheIdentity) {
    Matrix matrix;
    EXPECT_EQ(Applied(matrix, 3, -4), (Vector{3, -4}));
    matrix.Translate(5, 6);
    matrix.Scale(2, 3);
    matrix.Reset();
    EXPECT_EQ(Applied(matrix, 3, -4), (Vector{3, -4}));
}

TEST(Matrix, SingleOperations) {
    Matrix matrix;
    matrix.Rotate(1, 0);
    EXPECT_EQ(Applied(matrix, 3, 5), (Vector{-5, 3}));
    matrix.Reset();
    matrix.Scale(2, -3);
    EXPECT_EQ(Applied(matrix, 3, 5), (Vector{6, -15}));
    matrix.Reset();
    matrix.Translate(10, 20);
    EXPECT_EQ(Applied(matrix, 3, 5), (Vector{13, 25}));
    EXPECT_EQ(matrix.ApplyX(3, 5), 13);
    EXPECT_EQ(matrix.ApplyY(3, 5), 25);
}

TEST(Matrix, OperationsComposeInCallOrder) {
    Matrix matrix;
    matrix.Scale(2, 3);
    matrix.Translate(1, 1);
    matrix.Rotate(1, 0);
    matrix.Translate(100, 200);
    // (3, 5) → (6, 15) → (7, 16) → (−16, 7) → (84, 207)
    EXPECT_EQ(Applied(matrix, 3, 5), (Vector{84, 207}));
    matrix.Scale(2, 4);
    EXPECT_EQ(Applied(matrix, 3, 5), (Vector{168, 828}));
}

TEST(Matrix, RotationsAndShiftsAgreeWithComplexNumbers) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> number(-1000, 1000);
    std::uniform_real_distribution<double> angle(-10, 10);
    for (int i = 0; i < 2000; ++i) {
        Matrix matrix;
        std::complex<double> z(number(random), number(random));
        const std::complex<double> start = z;
        for (int k = 0; k < 5; ++k) {
            const double turn = angle(random);
            matrix.Rotate(std::sin(turn), std::cos(turn));
            z *= std::polar(1.0, turn);
            const std::complex<double> shift(number(random), number(random));
            matrix.Translate(shift.real(), shift.imag());
            z += shift;
            const double factor = number(random) / 1000;
            matrix.Scale(factor, factor);
            z *= factor;
        }
        EXPECT_NEAR(matrix.ApplyX(start.real(), start.imag()), z.real(), 1e-9);
        EXPECT_NEAR(matrix.ApplyY(start.real(), start.imag()), z.imag(), 1e-9);
    }
}

TEST(Matrix, RotatePointTurnsTheSameWay) {
    for (const double angle : {0.0, 0.3, -2.0, 7.5}) {
        Matrix matrix;
        matrix.Rotate(std::sin(angle), std::cos(angle));
        double x = 12.5;
        double y = -7.25;
        const Vector turned = Applied(matrix, x, y);
        qmath::RotatePoint(x, y, angle);
        EXPECT_EQ((Vector{x, y}), turned);
    }
}

} // namespace
