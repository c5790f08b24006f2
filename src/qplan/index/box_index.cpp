#include "qplan/index/box_index.h"

namespace qplan {

void BoxIndex::Clear() {
    trees_.clear();
    recent_ = {};
    inTrees_ = 0;
}

void BoxIndex::Settle() {
    if (recent_.size() <= kFew)
        return;
    std::size_t smaller = trees_.size();
    std::size_t together = recent_.size();
    while (smaller > 0 && trees_[smaller - 1]->Size() <= 2 * together)
        together += trees_[--smaller]->Size();
    recent_.reserve(together);
    for (std::size_t i = smaller; i < trees_.size(); ++i)
        trees_[i]->AppendEntriesTo(recent_);
    auto tree = std::make_shared<const PackedTree>(recent_);
    trees_.resize(smaller);
    trees_.push_back(std::move(tree));
    inTrees_ = 0;
    for (const auto& each : trees_)
        inTrees_ += each->Size();
    recent_ = {};
}

void BoxIndex::Propose(const WorldBox& window, std::vector<std::uint32_t>& slots) {
    Settle();
    const auto found = [&](std::uint32_t slot) { slots.push_back(slot); };
    for (const auto& tree : trees_)
        tree->Visit(window, found);
    for (const BoxEntry& entry : recent_)
        if (entry.box.Meets(window))
            found(entry.slot);
}

BoxIndex::Descent::Descent(BoxIndex& index, const WorldBox& window) : window_(window) {
    index.Settle();
    trees_ = index.trees_;
    for (std::uint32_t i = 0; i < trees_.size(); ++i)
        Push({trees_[i]->Root(), i});
    for (const BoxEntry& entry : index.recent_)
        if (entry.box.Meets(window))
            Push({{entry.slot, 0, 0}, 0});
}

bool BoxIndex::Descent::Next(std::uint32_t& slot) {
    while (!heap_.empty()) {
        std::pop_heap(heap_.begin(), heap_.end());
        const Step step = heap_.back();
        heap_.pop_back();
        if (step.node.level == 0) {
            slot = step.node.highest;
            return true;
        }
        trees_[step.tree]->VisitNode(step.node, window_, [&](const PackedTree::Node& child) {
            Push({child, step.tree});
        });
    }
    return false;
}

void BoxIndex::Descent::Push(const Step& step) {
    heap_.push_back(step);
    std::push_heap(heap_.begin(), heap_.end());
}

} // namespace qplan
