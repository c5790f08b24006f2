#pragma once

#include "library_tool.h"
#include "symbol_group.h"

/// Moves and turns the marked symbols as one group, or places copies of them.
class MovingTool final : public LibraryTool<_CSymTool> {
public:
    enum Outcome { Moved, Copied };

    /// At least one symbol is marked.
    MovingTool(const PlanDocument& document, Outcome outcome);

    void MouseDown(PlanView& view, const Pointer& pointer) override;
    void KeyUp(PlanView& view, WPARAM key, LPARAM info) override;
    void Finish(PlanDocument& document) override;
    std::optional<double> Direction() const override;
    std::wstring Hint() const override;

    /// Fixes the group at once. to: in units, from where it is (relative) or in the plan.
    void MoveTo(PlanView& view, POINT to, bool isRelative);

private:
    Outcome outcome_;
};
