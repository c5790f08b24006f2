#include "qsymbol/files/wsc_box.h"

#include "base/checked.h"

#include <cmath>
#include <numbers>

namespace qsymbol {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr std::size_t kSteps = WscBox::kEllipsePoints - 1;
constexpr double kTurn = 2 * kPi;

/// Sine of so many steps; exact at every quarter turn, so that those points do not depend on noise.
double SineOfSteps(std::size_t steps) {
    constexpr std::size_t kQuarter = kSteps / 4;
    const std::size_t within = steps % (2 * kQuarter);
    const std::size_t rising = within <= kQuarter ? within : 2 * kQuarter - within;
    const double sine = std::sin(static_cast<double>(rising) * (kTurn / kSteps));
    return steps / (2 * kQuarter) % 2 == 0 ? sine : -sine;
}

} // namespace

bool WscBox::IsSquare() const {
    return std::fabs(std::fabs(second.x - first.x) - std::fabs(second.y - first.y)) <= 1.0;
}

WscPlace WscBox::Centre() const {
    return {(first.x + second.x) / 2, (first.y + second.y) / 2};
}

double WscBox::RadiusX() const {
    return std::fabs(second.x - first.x) / 2;
}

double WscBox::RadiusY() const {
    return std::fabs(second.y - first.y) / 2;
}

void WscBox::Ellipse(std::span<qmath::Point, kEllipsePoints> outline, std::int32_t height) const {
    const WscPlace centre = Centre();
    for (std::size_t i = 0; i < kSteps; ++i) {
        const double cosine = SineOfSteps(i + kSteps / 4);
        outline[i] = ToSymbol({centre.x + RadiusX() * cosine, centre.y + RadiusY() * SineOfSteps(i)}, height);
    }
    outline.back() = outline.front();
}

double WscBox::ParameterOf(WscPlace place) const {
    const WscPlace centre = Centre();
    // The direction is divided by the radii, or rather multiplied by each other's: a radius may be 0.
    return std::atan2((place.y - centre.y) * RadiusX(), (place.x - centre.x) * RadiusY());
}

void WscBox::Sector(WscPlace from, WscPlace to, std::span<qmath::Point, kSectorPoints> outline,
                    std::int32_t height) const {
    const WscPlace centre = Centre();
    const double start = ParameterOf(from);
    double sweep = ParameterOf(to) - start;
    if (sweep <= 0)
        sweep += kTurn;
    for (std::size_t i = 0; i <= kSteps; ++i) {
        const double angle = start + sweep * static_cast<double>(i) / kSteps;
        outline[i] = ToSymbol(
            {centre.x + RadiusX() * std::cos(angle), centre.y + RadiusY() * std::sin(angle)}, height);
    }
    outline.back() = ToSymbol(centre, height);
}

} // namespace qsymbol
