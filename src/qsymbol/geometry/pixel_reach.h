#pragma once

#include "qmath/transform.h"
#include "qsymbol/geometry/symbol_position.h"

namespace qsymbol {

/// How far around its insertion point a placed symbol can have anything, in pixels and without trigonometry: the
/// circle that the farthest of its points describes when it turns.
///
/// For a map that is a value of our own. Where a coordinate could leave the 32-bit range or the placement is no
/// number, nothing is known: the exact way has to find out, and to raise its error.
class PixelReach {
public:
    /// farX, farY: the largest distances of the points from the reference point along both axes, in the symbol's
    /// own units.
    PixelReach(double farX, double farY, const SymbolPosition& position, double screenFactor,
               const qmath::Transform& transform);

    bool IsKnown() const { return isKnown_; }
    /// The insertion point in pixels, not rounded.
    double X() const { return x_; }
    double Y() const { return y_; }
    /// Own units to pixels.
    double Unit() const { return unit_; }
    /// How far a point can come to lie from where it is before both roundings.
    double Slack() const { return slack_; }
    /// No pixel of the symbol is that far away in a straight line.
    bool IsBeyond(double dx, double dy) const {
        return isKnown_ && dx * dx + dy * dy > (radius_ + slack_) * (radius_ + slack_);
    }
    /// No pixel of the symbol is that far away along one axis.
    bool IsBeyond(double d) const { return isKnown_ && d > radius_ + slack_; }

private:
    double x_;
    double y_;
    double unit_;
    double radius_;
    double slack_;
    bool isKnown_;
};

} // namespace qsymbol
