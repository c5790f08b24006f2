#pragma once

#include "../plan_file.h"

#include <vector>

/// A change of a plan's symbols: from a place on some give way to others.
struct PlanChange {
    std::size_t first = 0;
    std::vector<PlacedSymbol> before;
    std::vector<PlacedSymbol> after;

    bool IsNothing() const { return before.empty() && after.empty(); }
    PlanChange Reversed() const { return {first, after, before}; }
};

/// What makes the second from the first: all between what is the same at both ends.
PlanChange Difference(const std::vector<PlacedSymbol>& before, const std::vector<PlacedSymbol>& after);

/// The way back and forth again, without limit. Every state of the plan has a number of its own.
class History {
public:
    /// A new plan, as it is in its file.
    void Begin();
    /// continues: one of several steps of a kind, as when a symbol is nudged again; those in a row are taken back in one.
    void Add(PlanChange change, bool continues);

    bool CanUndo() const { return next_ > 0; }
    bool CanRedo() const { return next_ < steps_.size(); }
    const PlanChange& ToUndo() const { return steps_[next_ - 1].change; }
    const PlanChange& ToRedo() const { return steps_[next_].change; }
    void WentBack() { --next_; }
    void WentForth() { ++next_; }

    unsigned State() const { return next_ == 0 ? start_ : steps_[next_ - 1].state; }

private:
    struct Step {
        PlanChange change;
        unsigned state; ///< that it leads to
        bool canBeContinued;
    };

    std::vector<Step> steps_;
    std::size_t next_ = 0; ///< to be gone forth
    unsigned start_ = 0;
    unsigned lastState_ = 0;
};
