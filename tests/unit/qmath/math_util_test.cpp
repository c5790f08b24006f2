#include "qmath/math_util.h"

#include "support/error_number_of.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace qmath;
using support::ErrorNumberOf;

TEST(MathUtil, Constants) {
    EXPECT_EQ(kPi, std::acos(-1.0));
    EXPECT_EQ(kMaxLong, 2147483647);
}

TEST(MathUtil, DegreesAndRadiansAreNotNormalised) {
    EXPECT_EQ(RadToDeg(kPi), 180);
    EXPECT_EQ(RadToDeg(kPi / 2), 90);
    EXPECT_EQ(RadToDeg(-4 * kPi), -720);
    EXPECT_EQ(DegToRad(90), kPi / 2);
    EXPECT_EQ(DegToRad(-540), -3 * kPi);
    EXPECT_NEAR(RadToDeg(DegToRad(123.4)), 123.4, 1e-12);
}

TEST(MathUtil, NormalizeAngleBringsIntoOneTurn) {
    EXPECT_EQ(NormalizeAngle(0), 0);
    EXPECT_EQ(NormalizeAngle(1.25), 1.25);
    EXPECT_EQ(NormalizeAngle(2 * kPi), 0);
    EXPECT_EQ(NormalizeAngle(-kPi / 2), 1.5 * kPi);
    EXPECT_NEAR(NormalizeAngle(7 * kPi), kPi, 1e-12);
    EXPECT_NEAR(NormalizeAngle(-9.5 * kPi), kPi / 2, 1e-12);
}

TEST(MathUtil, NormalizeAngleStaysBelowTheFullTurn) {
    for (const double tiny : {-1e-300, -1e-17, -4e-16, -std::numeric_limits<double>::denorm_min()}) {
        EXPECT_GE(NormalizeAngle(tiny), 0) << tiny;
        EXPECT_LT(NormalizeAngle(tiny), 2 * kPi) << tiny;
    }
    EXPECT_FALSE(std::signbit(NormalizeAngle(-0.0)));
    for (int i = -1000; i <= 1000; ++i) {
        const double angle = NormalizeAngle(i * 0.731);
        EXPECT_GE(angle, 0);
        EXPECT_LT(angle, 2 * kPi);
        EXPECT_NEAR(std::sin(angle), std::sin(i * 0.731), 1e-12);
        EXPECT_NEAR(std::cos(angle), std::cos(i * 0.731), 1e-12);
    }
}

TEST(MathUtil, NormalizeAngleOfNoNumberIsError5) {
    EXPECT_EQ(ErrorNumberOf([] { NormalizeAngle(std::numeric_limits<double>::infinity()); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { NormalizeAngle(std::numeric_limits<double>::quiet_NaN()); }), 5);
}

TEST(MathUtil, VectorAngle) {
    EXPECT_EQ(VectorAngle(0, 0), 0);
    EXPECT_EQ(VectorAngle(-0.0, 0.0), 0);
    EXPECT_EQ(VectorAngle(5, 0), 0);
    EXPECT_EQ(VectorAngle(5, -0.0), 0);
    EXPECT_EQ(VectorAngle(0, 3), kPi / 2);
    EXPECT_EQ(VectorAngle(-2, 0), kPi);
    EXPECT_EQ(VectorAngle(-2, -0.0), kPi);
    EXPECT_EQ(VectorAngle(0, -3), 1.5 * kPi);
    EXPECT_NEAR(VectorAngle(1, -1), 1.75 * kPi, 1e-15);
    EXPECT_GE(VectorAngle(1, -1e-300), 0);
    EXPECT_LT(VectorAngle(1, -1e-300), 2 * kPi);
}

TEST(MathUtil, Distance) {
    EXPECT_EQ(Distance({1, 2}, {4, 6}), 5);
    EXPECT_EQ(Distance({4, 6}, {1, 2}), 5);
    EXPECT_EQ(Distance({7, 7}, {7, 7}), 0);
    EXPECT_EQ(Distance({-2147483647 - 1, 0}, {2147483647, 0}), 4294967295.0);
}

TEST(MathUtil, RotatePoint) {
    double x = 3;
    double y = 4;
    RotatePoint(x, y, kPi / 2);
    EXPECT_NEAR(x, -4, 1e-15);
    EXPECT_NEAR(y, 3, 1e-15);
    RotatePoint(x, y, -kPi / 2);
    EXPECT_NEAR(x, 3, 1e-15);
    EXPECT_NEAR(y, 4, 1e-15);
}

} // namespace
