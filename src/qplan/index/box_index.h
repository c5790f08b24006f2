#pragma once

#include "qplan/index/packed_tree.h"

#include <memory>
#include <vector>

namespace qplan {

/// Proposes the slots that may have something in a window. It proposes too many, never too few: an entry stays until
/// the next Clear, also when its slot has another box by now.
///
/// Trees that are built once, each more than twice as large as the next one; new entries wait until there are enough of
/// them for a tree, or go together with smaller ones. So an entry is sorted a logarithmic number of times, and
/// all at once when nothing was asked meanwhile. Copies share the trees.
class BoxIndex {
    using Trees = std::vector<std::shared_ptr<const PackedTree>>;

public:
    void Add(const WorldBox& box, std::uint32_t slot) { recent_.push_back({box, slot}); }
    void Clear();
    void Reserve(std::size_t entries) { recent_.reserve(entries); }
    std::size_t Size() const { return inTrees_ + recent_.size(); }

    /// Calls found(slot, box) for every entry, in no order; a slot may have several.
    template <class Found>
    void Propose(const WorldBox& window, const Found& found) {
        Settle();
        for (const auto& tree : *trees_)
            tree->Visit(window, found);
        for (const BoxEntry& entry : recent_)
            if (entry.box.Meets(window))
                found(entry.slot, entry.box);
    }

    /// The slots from the highest down, found as far as they are asked for. Changes of the index do not matter to it.
    class Descent {
    public:
        Descent(BoxIndex& index, const WorldBox& window);
        /// The next slot; false at the end.
        bool Next(std::uint32_t& slot);

    private:
        struct Step {
            PackedTree::Node node;
            std::uint32_t tree = 0;
            bool operator<(const Step& other) const { return node.highest < other.node.highest; }
        };
        void Push(const Step& step);

        WorldBox window_;
        std::shared_ptr<const Trees> trees_;
        std::vector<Step> heap_; ///< level 0 of a tree, or an entry without a tree
    };

private:
    /// So many entries are looked through one by one.
    static constexpr std::size_t kFew = 32;

    void Settle();

    std::shared_ptr<const Trees> trees_ = std::make_shared<Trees>(); ///< the largest first
    std::vector<BoxEntry> recent_;
    std::size_t inTrees_ = 0;
};

} // namespace qplan
