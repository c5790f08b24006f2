#include "qplan/index/box_index.h"

#include <utility>

namespace qplan {

void BoxIndex::Clear() {
    trees_ = std::make_shared<Trees>();
    recent_ = {};
    inTrees_ = 0;
}

void BoxIndex::Settle() {
    if (recent_.size() <= kFew)
        return;
    Trees trees = *trees_;
    std::size_t smaller = trees.size();
    std::size_t together = recent_.size();
    while (smaller > 0 && trees[smaller - 1]->Size() <= 2 * together)
        together += trees[--smaller]->Size();
    recent_.reserve(together);
    for (std::size_t i = smaller; i < trees.size(); ++i)
        trees[i]->AppendEntriesTo(recent_);
    trees.resize(smaller);
    trees.push_back(std::make_shared<const PackedTree>(recent_));
    inTrees_ = 0;
    for (const auto& each : trees)
        inTrees_ += each->Size();
    trees_ = std::make_shared<const Trees>(std::move(trees));
    recent_ = {};
}

BoxIndex::Descent::Descent(BoxIndex& index, const WorldBox& window) : window_(window) {
    index.Settle();
    // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer): they are settled just now
    trees_ = index.trees_;
    constexpr std::size_t kUsual = 64;
    heap_.reserve(kUsual);
    for (std::uint32_t i = 0; i < trees_->size(); ++i)
        Push({(*trees_)[i]->Root(), i});
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
        (*trees_)[step.tree]->VisitNode(step.node, window_, [&](const PackedTree::Node& child) {
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
