#include "qplan/plan/placement_index.h"

#include "qsymbol/geometry/draw_factors.h"
#include "qsymbol/geometry/turn.h"

#include <cmath>

namespace qplan {

namespace {

/// The upright box around a reach that is scaled and turned about the insertion point.
WorldBox Placed(const qsymbol::Box& reach, const qsymbol::SymbolPosition& position, double factor) {
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
    known_ = 0;
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
    for (const std::uint32_t slot : moved_)
        if (slot < known_)
            add(slot);
    moved_.clear();
    tree_.Reserve(placements.SlotCount() - known_);
    for (; known_ < placements.SlotCount(); ++known_)
        add(known_);
}

void PlacementIndex::Add(std::size_t slot, const Placement& placement, const SymbolReach& reach) {
    if (reach.box.IsEmpty())
        return;
    qsymbol::Box box = reach.box;
    // With the reference point it holds the boxes of all smaller factors.
    box.Include(0, 0);
    if (mirrored_) {
        box.Include(-box.left, -box.top);
        box.Include(-box.right, -box.bottom);
    }
    tree_.Add(reach.IsUnlimited() ? WorldBox::Everything() : Placed(box, placement.position, factor_),
              static_cast<std::uint32_t>(slot));
}

std::vector<std::uint32_t> PlacementIndex::SlotsIn(const WorldBox& window) {
    std::vector<std::uint32_t> slots;
    tree_.Propose(window, slots);
    // Many of all slots are sorted faster by going through all.
    constexpr std::size_t kMany = 64;
    if (slots.size() * kMany < known_) {
        std::sort(slots.begin(), slots.end());
        slots.erase(std::unique(slots.begin(), slots.end()), slots.end());
        return slots;
    }
    std::vector<bool> proposed(known_);
    for (const std::uint32_t slot : slots)
        proposed[slot] = true;
    slots.clear();
    for (std::size_t slot = 0; slot < known_; ++slot)
        if (proposed[slot])
            slots.push_back(static_cast<std::uint32_t>(slot));
    return slots;
}

} // namespace qplan
