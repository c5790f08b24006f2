#pragma once

#include "qplan/index/world_box.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace qplan {

/// A box in which a slot of a list has something.
struct BoxEntry {
    WorldBox box;
    std::uint32_t slot = 0;
};

/// A tree of boxes that is built once: neighbours along a curve through the plane share a node, sixteen each, and all
/// levels lie in one array. About 21 bytes an entry.
class PackedTree {
public:
    /// Any order, at least one; the entries are sorted.
    explicit PackedTree(std::vector<BoxEntry>& entries);

    std::size_t Size() const { return slots_.size(); }
    void AppendEntriesTo(std::vector<BoxEntry>& entries) const;

    /// Calls found(slot, box) for every entry whose box meets the window, in no order.
    template <class Found>
    void Visit(const WorldBox& window, const Found& found) const {
        VisitChildren(levels_.size() - 1, 0, window, found);
    }

    /// A node, or on level 0 an entry.
    struct Node {
        std::uint32_t highest = 0; ///< slot in it
        std::uint32_t level = 0;
        std::uint32_t at = 0; ///< place in its level
    };
    Node Root() const { return {highest_.back(), static_cast<std::uint32_t>(levels_.size() - 1), 0}; }
    /// Calls found(node) for every child whose box meets the window.
    template <class Found>
    void VisitNode(const Node& node, const WorldBox& window, const Found& found) const {
        const Level& below = levels_[node.level - 1];
        const std::size_t first = std::size_t{node.at} * kWidth;
        const std::size_t end = std::min(first + kWidth, below.count);
        for (std::size_t at = first; at < end; ++at)
            if (boxes_[below.first + at].Meets(window))
                found(Node{HighestAt(node.level - 1, at), node.level - 1, static_cast<std::uint32_t>(at)});
    }

private:
    static constexpr std::size_t kWidth = 16;

    struct Level {
        std::size_t first = 0; ///< in boxes_
        std::size_t count = 0;
    };

    std::uint32_t HighestAt(std::size_t level, std::size_t at) const {
        return level == 0 ? slots_[at] : highest_[levels_[level].first - slots_.size() + at];
    }

    template <class Found>
    void VisitChildren(std::size_t level, std::size_t at, const WorldBox& window, const Found& found) const {
        const Level& below = levels_[level - 1];
        const std::size_t end = std::min((at + 1) * kWidth, below.count);
        for (std::size_t child = at * kWidth; child < end; ++child) {
            if (!boxes_[below.first + child].Meets(window))
                continue;
            if (level == 1)
                found(slots_[child], boxes_[child]);
            else
                VisitChildren(level - 1, child, window, found);
        }
    }

    std::vector<WorldBox> boxes_; ///< entries first, then level by level up to the root
    std::vector<std::uint32_t> slots_;
    std::vector<std::uint32_t> highest_; ///< of the nodes
    std::vector<Level> levels_;          ///< of entries, of nodes over them, …; the last has the root alone
};

} // namespace qplan
