#include "qplan/plan/placement_list.h"

#include <algorithm>

namespace qplan {

void PlacementList::Append(const Placement& placement) {
    if (slots_.size() % kBlock == 0)
        taken_.push_back(0);
    slots_.push_back(placement);
    ++taken_.back();
    ++count_;
}

void PlacementList::Clear() {
    slots_ = {};
    taken_ = {};
    count_ = 0;
}

bool PlacementList::Remove(std::size_t slot) {
    slots_[slot].symbol = kGone;
    --taken_[slot / kBlock];
    --count_;
    const bool squeeze = slots_.size() - static_cast<std::size_t>(count_) >
                         std::max<std::size_t>(static_cast<std::size_t>(count_), kBlock);
    if (squeeze)
        Squeeze();
    return squeeze;
}

void PlacementList::Squeeze() {
    std::erase_if(slots_, [](const Placement& placement) { return placement.symbol == kGone; });
    taken_.assign((slots_.size() + kBlock - 1) / kBlock, kBlock);
    if (slots_.size() % kBlock != 0)
        taken_.back() = static_cast<std::uint16_t>(slots_.size() % kBlock);
}

std::size_t PlacementList::FirstFrom(std::int32_t id) const {
    // Mostly the ids have no gaps.
    const auto guess = static_cast<std::size_t>(
        std::max<std::int64_t>(0, slots_.empty() ? 0 : std::int64_t{id} - slots_.front().id));
    if (guess < slots_.size() && slots_[guess].id == id)
        return guess;
    return static_cast<std::size_t>(std::ranges::lower_bound(slots_, id, {}, &Placement::id) -
                                    slots_.begin());
}

std::optional<std::size_t> PlacementList::SlotOf(std::int32_t id) const {
    const std::size_t slot = FirstFrom(id);
    if (slot == slots_.size() || slots_[slot].id != id || slots_[slot].symbol == kGone)
        return std::nullopt;
    return slot;
}

const Placement* PlacementList::ById(std::int32_t id) const {
    const std::optional<std::size_t> slot = SlotOf(id);
    return slot ? &slots_[*slot] : nullptr;
}

const Placement* PlacementList::ByPos(std::int32_t position) const {
    if (position < 1 || position > count_)
        return nullptr;
    auto left = static_cast<std::size_t>(position) - 1;
    if (static_cast<std::size_t>(count_) == slots_.size())
        return &slots_[left];
    std::size_t slot = 0;
    for (std::size_t block = 0; left >= taken_[block]; ++block, slot += kBlock)
        left -= taken_[block];
    for (;; ++slot)
        if (slots_[slot].symbol != kGone && left-- == 0)
            return &slots_[slot];
}

const Placement* PlacementList::NextAfter(std::int32_t id) const {
    std::size_t slot = FirstFrom(id);
    while (slot < slots_.size()) {
        if (slot % kBlock == 0 && taken_[slot / kBlock] == 0) {
            slot += kBlock;
            continue;
        }
        if (slots_[slot].symbol != kGone && slots_[slot].id > id)
            return &slots_[slot];
        ++slot;
    }
    return nullptr;
}

} // namespace qplan
