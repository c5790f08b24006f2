#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace qsymbol {

/// A hash table of entries by their member `key`, which it does not own. Keys are compared as they stand.
///
/// One flat table with linear probing, at most half full, so that a lookup mostly touches one place.
template <class Entry>
class KeyIndex {
public:
    /// The entry under a key; nullptr when there is none.
    Entry* Find(std::u16string_view key) const {
        if (used_ == 0)
            return nullptr;
        const std::size_t hash = HashOf(key);
        for (std::size_t at = hash & Mask(); slots_[at].entry != nullptr; at = (at + 1) & Mask())
            if (slots_[at].hash == hash && slots_[at].entry->key == key)
                return slots_[at].entry;
        return nullptr;
    }

    /// Makes sure that the next Insert cannot fail.
    void MakeRoom() {
        if (2 * (used_ + 1) <= slots_.size())
            return;
        std::vector<Slot> old(slots_.empty() ? 16 : 2 * slots_.size());
        old.swap(slots_);
        for (const Slot& slot : old)
            if (slot.entry != nullptr)
                Put(slot);
    }

    /// Adds an entry whose key is not there yet, after MakeRoom.
    void Insert(Entry* entry) noexcept {
        Put({HashOf(entry->key), entry});
        ++used_;
    }

    /// Takes an entry out that is there.
    void Erase(const Entry* entry) noexcept {
        std::size_t hole = HashOf(entry->key) & Mask();
        while (slots_[hole].entry != entry)
            hole = (hole + 1) & Mask();
        // What follows moves up, unless it would come to stand before the place where its search begins.
        for (std::size_t at = (hole + 1) & Mask(); slots_[at].entry != nullptr; at = (at + 1) & Mask()) {
            if (((at - slots_[at].hash) & Mask()) >= ((at - hole) & Mask())) {
                slots_[hole] = slots_[at];
                hole = at;
            }
        }
        slots_[hole] = {};
        --used_;
    }

    void Clear() noexcept {
        slots_.clear();
        used_ = 0;
    }

private:
    struct Slot {
        std::size_t hash = 0;
        Entry* entry = nullptr;
    };

    static std::size_t HashOf(std::u16string_view key) noexcept {
        return std::hash<std::u16string_view>()(key);
    }
    std::size_t Mask() const { return slots_.size() - 1; }

    void Put(const Slot& slot) noexcept {
        std::size_t at = slot.hash & Mask();
        while (slots_[at].entry != nullptr)
            at = (at + 1) & Mask();
        slots_[at] = slot;
    }

    std::vector<Slot> slots_; ///< a power of two of them, or none
    std::size_t used_ = 0;
};

} // namespace qsymbol
