#pragma once

#include "qplan/index/box_index.h"
#include "qplan/index/slot_set.h"
#include "qplan/plan/placement_list.h"
#include "qplan/plan/symbol_table.h"

#include <cstdint>
#include <vector>

namespace qplan {

/// Where the placements of a plan are, by the reach of their symbols. Made when it is first asked for; every question
/// adds what has come since.
class PlacementIndex {
public:
    /// All slots have changed, or reach elsewhere.
    void Forget();
    /// A slot has another position.
    void Moved(std::size_t slot);

    /// A slot that may have something in a window.
    struct Proposal {
        std::uint32_t slot = 0;
        bool isWithin = false; ///< its box lies wholly in the inner window
    };

    /// Brings it up to date, for symbols scaled by at most this factor. It holds for smaller ones too and is not made
    /// again for them, so that drawing and hit tests with different factors may alternate.
    void Update(const PlacementList& placements, const SymbolTable& symbols, double factor);

    /// Slots that may have something in the window, in order, each once; empty ones may be among them.
    std::vector<Proposal> SlotsIn(const WorldBox& window, const WorldBox& inner = kNone);
    /// The same from the top down, as far as they are asked for; a slot may come again.
    BoxIndex::Descent DescendIn(const WorldBox& window) { return {tree_, window}; }

    /// Whether a placement and so much around it can be in the window, more exactly than its upright box says.
    static bool Shows(const Placement& placement, const SymbolReach& reach, double factor, double around,
                      const WorldBox& window);

private:
    static constexpr WorldBox kNone{1, 1, 0, 0};
    /// So many slots are sorted like anything else: a mouse's question must not grow with the plan.
    static constexpr std::size_t kFew = 64;

    static void Sort(std::vector<Proposal>& slots);
    void SortMany(std::vector<Proposal>& slots);
    void Add(std::size_t slot, const Placement& placement, const SymbolReach& reach);

    BoxIndex tree_;
    // Both are empty between calls.
    SlotSet proposed_;
    SlotSet within_;
    std::vector<bool> strayed_; ///< slots that are no longer where their first entry says
    std::size_t known_ = 0;     ///< slots below are in
    std::vector<std::uint32_t> moved_;
    double factor_ = 1;
    bool mirrored_ = false;
};

} // namespace qplan
