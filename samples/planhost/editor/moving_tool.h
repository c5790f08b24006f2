#pragma once

#include "library_tool.h"
#include "symbol_group.h"

/// Moves and turns placed symbols as one group, or places copies of them.
class MovingTool final : public LibraryTool<_CSymTool> {
public:
    enum Outcome { Moved, Copied };

    /// The marked symbols, at least one. base: the point of the plan that the mouse has hold of, in units; otherwise it is
    /// the insertion point of the first one.
    MovingTool(const PlanDocument& document, Outcome outcome, std::optional<POINT> base = {});
    /// Symbols that are not in the plan yet; at least one. found: the catalogue's, in the same order.
    MovingTool(std::vector<PlacedSymbol> symbols, const std::vector<Ptr<_CSymbol>>& found);

    void MouseDown(PlanView& view, const Pointer& pointer) override;
    void Turn(PlanView& view, const TurnKey& key) override;
    void MoveTo(PlanView& view, POINT to, bool isRelative) override;
    void Finish(PlanDocument& document) override;
    POINT Anchor() const override;
    const PlacedPlan* Catchable(const PlanDocument& document) override;
    std::optional<double> Direction() const override;
    std::wstring Hint() const override;

private:
    void Add(std::optional<POINT> base, const std::vector<_CSymbol*>& found);

    std::vector<PlacedSymbol> symbols_;
    std::vector<std::size_t> places_; ///< in the plan; none of new ones
    Outcome outcome_;
    POINT anchor_{};                   ///< from the base to the first insertion point
    std::optional<PlacedPlan> others_; ///< what is not moved, once it is asked for
};
