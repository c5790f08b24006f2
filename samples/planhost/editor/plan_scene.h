#pragma once

#include "../plan_drawing.h"
#include "plan_document.h"
#include "symbol_bounds.h"

#include <optional>
#include <set>

/// The placed symbols of a plan as they are seen: what of them is drawn, and how far each reaches.
class PlanScene {
public:
    /// The document stays where it is until the next Show. Gives the parts of the plan that look different now.
    std::vector<RECT> Show(const PlanDocument& document);
    /// The catalogue has changed: every symbol may look different.
    void Forget();

    /// Draws the symbols that the canvas shows. False when one of them cannot be drawn: then part of them is there.
    bool DrawSymbols(const Canvas& canvas) const;
    /// Draws them one by one. One that cannot be drawn is left out.
    void DrawWhatCanBeDrawn(const Canvas& canvas);
    /// What came of a symbol that could not be drawn; told once.
    std::optional<std::wstring> TakeFailure();

    /// What a symbol's figure covers, turned as it is placed.
    std::array<POINT, 4> Corners(std::size_t place) const;

private:
    const PlanDocument* document_ = nullptr;
    mutable BoundsOfSymbols bounds_;
    std::vector<PlacedSymbol> shown_;
    std::vector<RECT> reaches_;     ///< what anything of them may cover
    std::set<std::wstring> failed_; ///< names
    std::optional<std::wstring> failure_;
};
