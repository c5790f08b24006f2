#pragma once

#include "../plan_drawing.h"
#include "../plan_hits.h"
#include "symbol_bounds.h"

#include <optional>
#include <set>

/// The placed symbols of a plan as they are seen: which lie where, and which are to be drawn in a part of the plan.
class PlanScene {
public:
    /// plan and symbols stay where they are until the next Show. Gives the parts of the plan that look different now.
    std::vector<RECT> Show(const Plan& plan, const std::vector<Ptr<_CSymbol>>& symbols);
    /// The catalogue has changed: every symbol may look different.
    void Forget();

    /// Draws the symbols that may touch area, in units. One that cannot be drawn is left out.
    void DrawSymbols(const Canvas& canvas, const RECT& area);
    /// What came of a symbol that could not be drawn; told once.
    std::optional<std::wstring> TakeFailure();

    /// By their places in the plan, the topmost first.
    std::vector<std::size_t> SymbolsAt(const PointedAt& place, _CTrans& transformation,
                                       const RECT& area) const;
    /// What a symbol's figure covers, turned as it is placed.
    std::array<POINT, 4> Corners(std::size_t place) const;
    /// What anything of it may cover.
    const RECT& Reach(std::size_t place) const { return reaches_[place]; }

private:
    const Plan* plan_ = nullptr;
    const std::vector<Ptr<_CSymbol>>* symbols_ = nullptr;
    mutable BoundsOfSymbols bounds_;
    std::vector<PlacedSymbol> shown_;
    std::vector<RECT> reaches_;
    std::set<std::wstring> failed_; ///< names
    std::optional<std::wstring> failure_;
};
