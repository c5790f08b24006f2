#pragma once

#include "qmath/box.h"
#include "qsymbol/model/symbol.h"

#include <limits>

namespace qplan {

/// How far a symbol reaches from its reference point, unturned and unscaled: nothing of it is hit, caught or drawn
/// beyond. It may be larger than the truth, never smaller.
struct SymbolReach {
    qmath::Box box;    ///< logical units, the reference point is (0, 0); empty: nothing is ever there
    qmath::Box drawn;  ///< the part of it that drawing counts on
    double pixels = 0; ///< what drawing adds on every side, whatever the scale: texts have a least height
    /// The largest of what the box has around points: radii, pens, texts. A map of the host may show lengths larger than
    /// it shows distances along one of its axes.
    double length = 0;
    /// A placement whose box lies wholly within a rectangle is hit by it.
    bool isHitWithin = false;

    /// Of a symbol of which nothing is known: it is asked every time.
    static constexpr SymbolReach Unlimited() {
        constexpr double kFar = std::numeric_limits<double>::infinity();
        return {{-kFar, -kFar, kFar, kFar}, {-kFar, -kFar, kFar, kFar}, kFar, kFar};
    }
    bool IsUnlimited() const { return box.right - box.left == std::numeric_limits<double>::infinity(); }
};

/// That of a value: its nominal box and all elements, with pens and a generous estimate of its texts.
SymbolReach ReachOf(const qsymbol::Symbol& symbol);

} // namespace qplan
