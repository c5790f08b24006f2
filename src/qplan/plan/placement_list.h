#pragma once

#include "qplan/model/placement.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace qplan {

/// Placements in drawing order, which is that of their ids: what is added comes last.
///
/// Each has a slot that it keeps. Slots of removed ones stay empty until they are as many as the others: then all
/// slots change.
class PlacementList {
public:
    std::int32_t Count() const { return count_; }
    /// Adds a placement whose id is larger than all before it.
    void Append(const Placement& placement);
    void Reserve(std::size_t count) { slots_.reserve(count); }
    void Clear();
    void Move(std::size_t slot, const qsymbol::SymbolPosition& position) { slots_[slot].position = position; }
    /// True when all slots have changed.
    bool Remove(std::size_t slot);

    const Placement* ById(std::int32_t id) const;
    const Placement* ByPos(std::int32_t position) const;
    const Placement* NextAfter(std::int32_t id) const;

    std::size_t SlotCount() const { return slots_.size(); }
    /// nullptr for an empty slot.
    const Placement* AtSlot(std::size_t slot) const {
        return slots_[slot].symbol == kGone ? nullptr : &slots_[slot];
    }
    std::optional<std::size_t> SlotOf(std::int32_t id) const;

private:
    static constexpr std::uint32_t kGone = 0xFFFFFFFF;
    static constexpr std::size_t kBlock = 512;

    /// The first slot with an id that is not smaller.
    std::size_t FirstFrom(std::int32_t id) const;
    void Squeeze();

    std::vector<Placement> slots_;
    std::vector<std::uint16_t> taken_; ///< in each block of slots
    std::int32_t count_ = 0;
};

} // namespace qplan
