#pragma once

#include "editor_tool.h"

/// Turns the marked symbols about a point after the mouse, in whole degrees; with Shift in steps of 15. What the libraries'
/// tools do is done by hand here: an inverting image of symbols.
class TurningTool final : public EditorTool {
public:
    /// about: in units; from: where the mouse took hold, in units.
    TurningTool(const PlanDocument& document, POINT about, POINT from);

    void MouseMove(PlanView& view, const Pointer& pointer) override;
    void MouseDown(PlanView& view, const Pointer& pointer) override;
    void Turn(PlanView& view, const TurnKey& key) override;
    void MoveTo(PlanView&, POINT, bool) override {}
    void Draw(PlanView& view) override;
    bool IsReady() const override { return isReady_; }
    void Finish(PlanDocument& document) override;
    const PlacedPlan* Catchable(const PlanDocument&) override { return nullptr; }
    std::optional<double> Direction() const override;
    std::wstring Hint() const override;

private:
    std::vector<PlacedSymbol> Turned() const;
    void TurnTo(PlanView& view, int degrees);

    const PlanDocument& document_;
    POINT about_;
    double from_;     ///< direction of the mouse at first, in degrees
    int degrees_ = 0; ///< turned so far
    bool isReady_ = false;
};
