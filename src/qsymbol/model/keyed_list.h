#pragma once

#include "base/error.h"
#include "base/letter_case.h"
#include "qsymbol/model/key_index.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qsymbol {

/// The ordered list behind the collections: positions from 1, optional keys compared without regard to case.
///
/// Every entry carries a serial number larger than that of all entries before it, also of removed ones, so an
/// enumerator that remembers the last serial it gave survives removals and additions. Entries never move in
/// memory. The list stays whole when the destructor of an entry calls back into it.
template <class T>
class KeyedList {
public:
    /// What an enumerator sees of an entry.
    struct Item {
        std::uint64_t serial; ///< 1 or more
        T value;
    };

    /// Number of entries.
    std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }

    /// Adds an entry without a key at the end.
    void Append(T value) {
        MakeRoom();
        entries_.push_back(std::make_unique<Entry>(++lastSerial_, std::move(value), std::u16string(), false));
    }

    /// Adds an entry at the end. Error 457 when the key is taken; nothing has changed then.
    void Append(T value, std::u16string_view key) {
        std::u16string folded = base::UpperCase(key);
        if (index_.Find(folded) != nullptr)
            base::Raise(base::RunTimeError::DuplicateKey);
        MakeRoom();
        index_.MakeRoom();
        auto entry = std::make_unique<Entry>(++lastSerial_, std::move(value), std::move(folded), true);
        index_.Insert(entry.get());
        entries_.push_back(std::move(entry));
    }

    /// The value at a position from 1; nullptr outside 1 to Count. Valid until that entry goes.
    T* ItemByPos(std::int32_t position) {
        return Holds(position) ? &entries_[static_cast<std::size_t>(position) - 1]->value : nullptr;
    }
    const T* ItemByPos(std::int32_t position) const {
        return Holds(position) ? &entries_[static_cast<std::size_t>(position) - 1]->value : nullptr;
    }

    /// The value under a key; nullptr when there is none. Valid until that entry goes.
    T* ItemByKey(std::u16string_view key) {
        Entry* const entry = index_.Find(base::UpperCase(key));
        return entry == nullptr ? nullptr : &entry->value;
    }
    const T* ItemByKey(std::u16string_view key) const {
        const Entry* const entry = index_.Find(base::UpperCase(key));
        return entry == nullptr ? nullptr : &entry->value;
    }

    /// Removes the entry at a position from 1. Error 5 when there is none.
    void RemoveByPos(std::int32_t position) {
        if (!Holds(position))
            base::Raise(base::RunTimeError::InvalidCall);
        Remove(static_cast<std::size_t>(position) - 1);
    }

    /// Removes the entry under a key. Error 5 when there is none.
    void RemoveByKey(std::u16string_view key) {
        const Entry* const entry = index_.Find(base::UpperCase(key));
        if (entry == nullptr)
            base::Raise(base::RunTimeError::InvalidCall);
        Remove(FirstAfter(entry->serial - 1));
    }

    /// Removes all entries.
    void Clear() {
        const Entries gone = std::exchange(entries_, {});
        index_.Clear();
    }

    /// The first entry with a larger serial number; nullptr at the end. 0 starts from the front. O(log n).
    Item* NextAfter(std::uint64_t serial) {
        const std::size_t at = FirstAfter(serial);
        return at == entries_.size() ? nullptr : entries_[at].get();
    }
    const Item* NextAfter(std::uint64_t serial) const {
        const std::size_t at = FirstAfter(serial);
        return at == entries_.size() ? nullptr : entries_[at].get();
    }

private:
    struct Entry : Item {
        Entry(std::uint64_t number, T&& held, std::u16string&& folded, bool hasKey)
            : Item{number, std::move(held)}, key(std::move(folded)), keyed(hasKey) {}

        std::u16string key; ///< upper case
        bool keyed;
    };
    using Entries = std::vector<std::unique_ptr<Entry>>;

    bool Holds(std::int32_t position) const { return position >= 1 && position <= Count(); }

    /// Makes sure that the next entry can be put at the end without failing.
    void MakeRoom() {
        if (entries_.size() == entries_.capacity())
            entries_.reserve(std::max<std::size_t>(8, 2 * entries_.size()));
    }

    std::size_t FirstAfter(std::uint64_t serial) const {
        const auto at = std::upper_bound(
            entries_.begin(), entries_.end(), serial,
            [](std::uint64_t wanted, const std::unique_ptr<Entry>& entry) { return wanted < entry->serial; });
        return static_cast<std::size_t>(at - entries_.begin());
    }

    void Remove(std::size_t at) {
        const std::unique_ptr<Entry> gone = std::move(entries_[at]);
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(at));
        if (gone->keyed)
            index_.Erase(gone.get());
    }

    Entries entries_; ///< in the order of their serial numbers
    KeyIndex<Entry> index_;
    std::uint64_t lastSerial_ = 0;
};

} // namespace qsymbol
