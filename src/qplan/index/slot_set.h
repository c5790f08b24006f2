#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace qplan {

/// Puts slots into order, each once, in time that goes with their number: bits, and bits that say which words have any.
class SlotSet {
public:
    /// Slots below count; what is in the set stays.
    void Grow(std::size_t count) {
        words_.resize(count / kBits + 1);
        used_.resize(words_.size() / kBits + 1);
    }
    void Insert(std::uint32_t slot) {
        words_[slot / kBits] |= std::uint64_t{1} << slot % kBits;
        used_[slot / kBits / kBits] |= std::uint64_t{1} << slot / kBits % kBits;
    }
    /// Takes one out; false when it is not there.
    bool Remove(std::uint32_t slot) {
        std::uint64_t& word = words_[slot / kBits];
        const std::uint64_t bit = std::uint64_t{1} << slot % kBits;
        const bool isThere = (word & bit) != 0;
        word &= ~bit;
        return isThere;
    }
    /// Takes all out: taken(slot) for each from the lowest up.
    template <class Taken>
    void Drain(const Taken& taken) {
        for (std::size_t i = 0; i < used_.size(); ++i)
            for (; used_[i] != 0; used_[i] &= used_[i] - 1) {
                const std::size_t at = i * kBits + static_cast<std::size_t>(std::countr_zero(used_[i]));
                for (std::uint64_t& word = words_[at]; word != 0; word &= word - 1)
                    taken(static_cast<std::uint32_t>(at * kBits +
                                                     static_cast<std::size_t>(std::countr_zero(word))));
            }
    }

private:
    static constexpr std::size_t kBits = 64;

    std::vector<std::uint64_t> words_;
    std::vector<std::uint64_t> used_;
};

} // namespace qplan
