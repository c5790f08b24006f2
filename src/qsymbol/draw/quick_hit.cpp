#include "qsymbol/draw/quick_hit.h"

#include "qsymbol/geometry/turn.h"

#include <algorithm>
#include <cmath>

namespace qsymbol {

namespace {

double Farther(double from, double to) {
    return std::max(std::abs(from), std::abs(to));
}

/// What is apart in one direction by more than rounding moves is apart; what overlaps in all by more meets.
std::optional<bool> Decided(double leastOverlap, double slack) {
    if (leastOverlap < -slack)
        return false;
    if (leastOverlap > slack)
        return true;
    return {};
}

} // namespace

QuickHit::QuickHit(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                   const qmath::Transform& transform)
    : angle_(position.angle), reach_(Farther(symbol.refX, static_cast<double>(symbol.width) - symbol.refX),
                                     Farther(symbol.refY, static_cast<double>(symbol.height) - symbol.refY),
                                     position, screenFactor, transform) {
    const double unit = reach_.Unit();
    halfX_ = std::abs(symbol.width * 0.5 * unit);
    halfY_ = std::abs(symbol.height * 0.5 * unit);
    middleX_ = (symbol.width * 0.5 - symbol.refX) * unit;
    middleY_ = (symbol.height * 0.5 - symbol.refY) * unit;
}

std::optional<bool> QuickHit::Contains(qmath::Point screen) const {
    if (!reach_.IsKnown())
        return {};
    const double x = screen.x - reach_.X();
    const double y = screen.y - reach_.Y();
    if (reach_.IsBeyond(x, y))
        return false;
    const Turn& turn = TurnBy(angle_);
    const double ownX = turn.cosine * x - turn.sine * y - middleX_;
    const double ownY = turn.sine * x + turn.cosine * y - middleY_;
    return Decided(std::min(halfX_ - std::abs(ownX), halfY_ - std::abs(ownY)), reach_.Slack());
}

std::optional<bool> QuickHit::Meets(const qmath::Rect& screen) const {
    if (!reach_.IsKnown())
        return {};
    const double rectX = (static_cast<double>(screen.right) - screen.left) * 0.5;
    const double rectY = (static_cast<double>(screen.bottom) - screen.top) * 0.5;
    const double halfWidth = std::abs(rectX);
    const double halfHeight = std::abs(rectY);
    const double x = screen.left + rectX - reach_.X();
    const double y = screen.top + rectY - reach_.Y();
    if (reach_.IsBeyond(std::max(std::abs(x) - halfWidth, 0.0), std::max(std::abs(y) - halfHeight, 0.0)))
        return false;
    const Turn& turn = TurnBy(angle_);
    // The way between the middles along the box's axes and along those of the surface.
    const double ownX = turn.cosine * x - turn.sine * y - middleX_;
    const double ownY = turn.sine * x + turn.cosine * y - middleY_;
    const double awayX = turn.cosine * ownX + turn.sine * ownY;
    const double awayY = turn.cosine * ownY - turn.sine * ownX;
    const double sine = std::abs(turn.sine);
    const double cosine = std::abs(turn.cosine);
    const double overlap = std::min({halfX_ + cosine * halfWidth + sine * halfHeight - std::abs(ownX),
                                     halfY_ + sine * halfWidth + cosine * halfHeight - std::abs(ownY),
                                     halfWidth + cosine * halfX_ + sine * halfY_ - std::abs(awayX),
                                     halfHeight + sine * halfX_ + cosine * halfY_ - std::abs(awayY)});
    const std::optional<bool> decided = Decided(overlap, reach_.Slack());
    // A box so thin that rounding could fold it is left to the exact test.
    const bool canFold = std::min(halfX_, halfY_) <= 2 * reach_.Slack();
    return decided && *decided && canFold ? std::nullopt : decided;
}

} // namespace qsymbol
