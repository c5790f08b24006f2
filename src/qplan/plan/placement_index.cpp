#include "qplan/plan/placement_index.h"

#include "qsymbol/geometry/draw_factors.h"
#include "qsymbol/geometry/turn.h"

#include <algorithm>
#include <cmath>

namespace qplan {

namespace {

/// The upright box around a reach that is scaled and turned about the insertion point.
WorldBox Placed(const qmath::Box& reach, const qsymbol::SymbolPosition& position, double factor) {
    constexpr double kRounding = 1;
    const qsymbol::Turn& turn = qsymbol::TurnBy(position.angle);
    const double cosine = turn.cosine * factor;
    const double sine = turn.sine * factor;
    const double middleX = (reach.left + reach.right) / 2;
    const double middleY = (reach.top + reach.bottom) / 2;
    const double halfX = (reach.right - reach.left) / 2;
    const double halfY = (reach.bottom - reach.top) / 2;
    const double x = position.at.x + cosine * middleX + sine * middleY;
    const double y = position.at.y + cosine * middleY - sine * middleX;
    const double wide = std::abs(cosine) * halfX + std::abs(sine) * halfY + kRounding;
    const double high = std::abs(sine) * halfX + std::abs(cosine) * halfY + kRounding;
    return WorldBox::Around(x - wide, y - high, x + wide, y + high);
}

} // namespace

void PlacementIndex::Forget() {
    tree_.Clear();
    moved_ = {};
    strayed_ = {};
    known_ = 0;
}

void PlacementIndex::Moved(std::size_t slot) {
    if (slot >= known_)
        return;
    moved_.push_back(static_cast<std::uint32_t>(slot));
    if (moved_.size() > known_) // with no question in between
        Forget();
}

void PlacementIndex::Update(const PlacementList& placements, const SymbolTable& symbols, double factor) {
    const double needed = std::abs(qsymbol::FactorOrOne(factor));
    const bool mirrors = factor < 0 && !mirrored_;
    // What is removed or moved leaves its old entry.
    const bool isLittered = tree_.Size() > 2 * static_cast<std::size_t>(placements.Count()) + 1000;
    if (needed > factor_ || mirrors || isLittered) {
        factor_ = std::max(factor_, needed);
        mirrored_ |= mirrors;
        Forget();
    }
    const auto add = [&](std::size_t slot) {
        if (const Placement* const placement = placements.AtSlot(slot))
            Add(slot, *placement, symbols[placement->symbol].reach);
    };
    strayed_.resize(moved_.empty() ? strayed_.size() : known_);
    for (const std::uint32_t slot : moved_) {
        add(slot);
        strayed_[slot] = true;
    }
    moved_.clear();
    tree_.Reserve(placements.SlotCount() - known_);
    for (; known_ < placements.SlotCount(); ++known_)
        add(known_);
}

void PlacementIndex::Add(std::size_t slot, const Placement& placement, const SymbolReach& reach) {
    if (reach.box.IsEmpty())
        return;
    qmath::Box box = reach.box;
    // With the reference point it holds the boxes of all smaller factors.
    box.Include(0, 0);
    if (mirrored_) {
        box.Include(-box.left, -box.top);
        box.Include(-box.right, -box.bottom);
    }
    tree_.Add(reach.IsUnlimited() ? WorldBox::Everything() : Placed(box, placement.position, factor_),
              static_cast<std::uint32_t>(slot));
}

std::vector<PlacementIndex::Proposal> PlacementIndex::SlotsIn(const WorldBox& window, const WorldBox& inner) {
    std::vector<Proposal> slots;
    slots.reserve(kFew);
    tree_.Propose(window, [&](std::uint32_t slot, const WorldBox& box) {
        slots.push_back({slot, inner.Holds(box)});
    });
    slots.size() <= kFew ? Sort(slots) : SortMany(slots);
    for (Proposal& proposal : slots)
        proposal.isWithin &= proposal.slot >= strayed_.size() || !strayed_[proposal.slot];
    return slots;
}

void PlacementIndex::Sort(std::vector<Proposal>& slots) {
    std::ranges::sort(slots, [](const Proposal& one, const Proposal& other) {
        return one.slot != other.slot ? one.slot < other.slot : one.isWithin > other.isWithin;
    });
    const auto isTwice = [](const Proposal& one, const Proposal& other) { return one.slot == other.slot; };
    slots.erase(std::unique(slots.begin(), slots.end(), isTwice), slots.end());
}

/// In time that goes with their number, and a little with that of all slots.
void PlacementIndex::SortMany(std::vector<Proposal>& slots) {
    proposed_.Grow(known_);
    within_.Grow(known_);
    for (const auto& [slot, isWithin] : slots) {
        proposed_.Insert(slot);
        if (isWithin)
            within_.Insert(slot);
    }
    slots.clear();
    proposed_.Drain([&](std::uint32_t slot) { slots.push_back({slot, within_.Remove(slot)}); });
}

bool PlacementIndex::Shows(const Placement& placement, const SymbolReach& reach, double factor, double around,
                           const WorldBox& window) {
    if (reach.IsUnlimited())
        return true;
    // Two boxes are apart when an axis of one of them parts them.
    const double slack = 2 + around;
    const qsymbol::Turn& turn = qsymbol::TurnBy(placement.position.angle);
    const double sine = std::abs(turn.sine);
    const double cosine = std::abs(turn.cosine);
    const double halfX = (static_cast<double>(window.right) - window.left) / 2 + slack;
    const double halfY = (static_cast<double>(window.bottom) - window.top) / 2 + slack;
    const double wide = std::abs(reach.drawn.right - reach.drawn.left) / 2 * std::abs(factor);
    const double high = std::abs(reach.drawn.bottom - reach.drawn.top) / 2 * std::abs(factor);
    // The way from the middle of what is drawn to that of the window, and the same along the symbol's axes.
    const double middleX = (reach.drawn.left + reach.drawn.right) / 2 * factor;
    const double middleY = (reach.drawn.top + reach.drawn.bottom) / 2 * factor;
    const double x = (static_cast<double>(window.left) + window.right) / 2 - placement.position.at.x -
                     (turn.cosine * middleX + turn.sine * middleY);
    const double y = (static_cast<double>(window.top) + window.bottom) / 2 - placement.position.at.y -
                     (turn.cosine * middleY - turn.sine * middleX);
    const double ownX = turn.cosine * x - turn.sine * y;
    const double ownY = turn.sine * x + turn.cosine * y;
    return std::abs(x) <= halfX + cosine * wide + sine * high &&
           std::abs(y) <= halfY + sine * wide + cosine * high &&
           std::abs(ownX) <= wide + cosine * halfX + sine * halfY &&
           std::abs(ownY) <= high + sine * halfX + cosine * halfY;
}

} // namespace qplan
