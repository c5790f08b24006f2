#pragma once

#include "plan_document.h"
#include "plan_view.h"
#include "pointer.h"
#include "tool_keys.h"

#include <optional>
#include <string>

/// What the mouse and the keyboard drive while something is being placed. A tool draws an inverting image
/// into the view: drawn a second time at the same place, it is gone.
class EditorTool {
public:
    virtual ~EditorTool() = default;

    virtual void MouseMove(PlanView& view, const Pointer& pointer) = 0;
    /// The click that fixes.
    virtual void MouseDown(PlanView& view, const Pointer& pointer) = 0;
    virtual void Turn(PlanView& view, const TurnKey& key) = 0;
    /// Fixes at typed coordinates, in units: in the plan, or from where it comes (relative).
    virtual void MoveTo(PlanView& view, POINT to, bool isRelative) = 0;
    virtual void Draw(PlanView& view) = 0;

    virtual bool IsReady() const = 0;
    /// Brings what was placed into the plan, once it is ready.
    virtual void Finish(PlanDocument& document) = 0;

    /// Where its insertion point is from the mouse, in units: that point is caught.
    virtual POINT Anchor() const { return {}; }
    /// The placed symbols whose points can be caught, not what is moved itself; nullptr: none.
    virtual const PlacedPlan* Catchable(const PlanDocument& document) { return &document.Placed(); }
    /// The direction of what is being placed, in degrees; nothing before it has a place.
    virtual std::optional<double> Direction() const = 0;
    /// What the user may do now.
    virtual std::wstring Hint() const = 0;
};
