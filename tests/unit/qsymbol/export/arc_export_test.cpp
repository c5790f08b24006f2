#include "qmath/math_util.h"
#include "unit/qsymbol/export/export_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <map>
#include <random>
#include <sstream>

namespace {

using export_test::Element;
using export_test::Export;
using export_test::Only;
using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;

/// The real values of the first entity by group code.
std::map<int, double> Values(const std::string& bytes) {
    std::istringstream lines(bytes);
    std::map<int, double> values;
    std::string code;
    std::string value;
    while (std::getline(lines, code) && std::getline(lines, value))
        if (const int number = std::stoi(code); number >= 10 && number < 60)
            values[number] = std::stod(value);
    return values;
}

double TurnsApart(double degrees, double otherDegrees) {
    return std::fabs(std::remainder(degrees - otherDegrees, 360));
}

TEST(ArcExport, EndsInOneDirectionAreAFullTurnWhateverTheAngleRoundsThemTo) {
    const Symbol collinear = Only(Element(ElementType::Arc, {{0, 0}, {30, 40}, {3000, 4000}}));
    for (int step = 0; step < 100; ++step) {
        const auto values = Values(Export(collinear, {.at = {5, 5}, .angle = 0.063 * step}));
        ASSERT_EQ(values.at(50), 0) << step;
        ASSERT_EQ(values.at(51), 360) << step;
    }
}

TEST(ArcExport, AShortSweepThatRoundingTakesAwayIsNoFullTurn) {
    // 1.1 degrees, of which the factor leaves nothing between the placed points.
    const Symbol sliver = Only(Element(ElementType::Arc, {{0, 0}, {5000, 0}, {5000, -100}}));
    const auto values = Values(Export(sliver, {}, 0.001));
    EXPECT_EQ(values.at(50), 0);
    EXPECT_NEAR(values.at(51), 1.1458, 1e-4);
}

/// One placed arc, worked out in the mathematician's plane (y upwards) with complex numbers.
struct Trial {
    std::complex<double> centre; ///< in the symbol
    double radius;
    double start, sweep; ///< radians
    std::complex<double> reference, insertion;
    double angle, factor;
    std::int32_t etagenbreite;

    static Trial Random(std::mt19937_64& random) {
        const auto any = [&](double low, double high) {
            return std::round(std::uniform_real_distribution(low, high)(random));
        };
        const auto fraction = [&](double low, double high) {
            return std::uniform_real_distribution(low, high)(random);
        };
        return {.centre = {any(-2e6, 2e6), any(-2e6, 2e6)},
                .radius = any(20000, 500000),
                .start = fraction(0, 6.28),
                .sweep = fraction(0.01, 6.27),
                .reference = {any(-2e6, 2e6), any(-2e6, 2e6)},
                .insertion = {any(-2e7, 2e7), any(-2e7, 2e7)},
                .angle = fraction(-10, 10),
                .factor = fraction(0.3, 4),
                .etagenbreite = static_cast<std::int32_t>(any(-1e6, 2e7))};
    }

    static std::int32_t Whole(double value) { return static_cast<std::int32_t>(std::lround(value)); }
    static qmath::Point Logical(std::complex<double> point) {
        return {Whole(point.real()), Whole(-point.imag())};
    }
    std::complex<double> OnCircle(double direction) const { return centre + std::polar(radius, direction); }

    Symbol Made(ElementType type) const {
        ElementRecord element = Element(type, {Logical(centre)});
        element.radius = Whole(radius);
        if (type == ElementType::Arc) {
            element.points.push_back(Logical(OnCircle(start)));
            element.points.push_back(Logical(OnCircle(start + sweep)));
        }
        Symbol symbol = Only(element, etagenbreite);
        symbol.refX = Logical(reference).x;
        symbol.refY = Logical(reference).y;
        return symbol;
    }

    std::map<int, double> Exported(ElementType type) const {
        return Values(Export(Made(type), {.at = Logical(insertion), .angle = angle}, factor));
    }

    std::complex<double> PlacedCentre() const {
        const std::complex<double> mirror(0, etagenbreite);
        return insertion + std::polar(factor, angle) * (centre - reference) + mirror;
    }
};

constexpr double kUnit = 1e-5;

void ExpectCentre(const std::map<int, double>& values, const Trial& trial) {
    EXPECT_NEAR(values.at(10), trial.PlacedCentre().real() * kUnit, 0.51 * kUnit);
    EXPECT_NEAR(values.at(20), trial.PlacedCentre().imag() * kUnit, 0.51 * kUnit);
}

TEST(ArcExport, ScaledAndTurnedArcs) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 2000; ++i) {
        const Trial trial = Trial::Random(random);
        const auto values = trial.Exported(ElementType::Arc);
        ExpectCentre(values, trial);
        // Each of the two points was rounded twice, once before and once after the scaling.
        const double slack = 1.5 * (1 + trial.factor);
        EXPECT_NEAR(values.at(40), trial.radius * trial.factor * kUnit, slack * kUnit);
        const double slackDegrees = qmath::RadToDeg(slack / (trial.radius * trial.factor));
        EXPECT_LT(TurnsApart(values.at(50), qmath::RadToDeg(trial.start + trial.angle)), slackDegrees);
        EXPECT_LT(TurnsApart(values.at(51), qmath::RadToDeg(trial.start + trial.sweep + trial.angle)),
                  slackDegrees);
        EXPECT_GE(values.at(50), 0);
        EXPECT_LE(values.at(51), 360);
    }
}

TEST(ArcExport, ScaledAndTurnedCircles) {
    std::mt19937_64 random(12);
    for (int i = 0; i < 2000; ++i) {
        const Trial trial = Trial::Random(random);
        const auto values = trial.Exported(ElementType::Circle);
        ExpectCentre(values, trial);
        EXPECT_NEAR(values.at(40), trial.radius * trial.factor * kUnit, 0.51 * kUnit);
        EXPECT_EQ(values.at(50), 0);
        EXPECT_EQ(values.at(51), 360);
    }
}

} // namespace
