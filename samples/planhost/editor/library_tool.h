#pragma once

#include "editor_tool.h"

/// What the libraries' two tools have in common: they take the window's events with the box to draw on and
/// the map.
template <class Interface>
class LibraryTool : public EditorTool {
public:
    explicit LibraryTool(Ptr<Interface> tool) : tool_(std::move(tool)) {}

    void MouseMove(PlanView& view, const Pointer& pointer) override {
        const auto [x, y] = pointer.pixel;
        Check(tool_->MouseMove(static_cast<float>(x), static_cast<float>(y), &view.Box(),
                               &view.Transformation()));
    }
    void MouseDown(PlanView& view, const Pointer& pointer) override {
        const auto [x, y] = pointer.pixel;
        Check(tool_->MouseDown(static_cast<float>(x), static_cast<float>(y), &view.Box(),
                               &view.Transformation()));
    }
    void Draw(PlanView& view) override { Check(tool_->Draw(&view.Box(), &view.Transformation())); }
    bool IsReady() const override {
        VARIANT_BOOL isReady = VARIANT_FALSE;
        Check(tool_->get_Ready(&isReady));
        return isReady != VARIANT_FALSE;
    }

protected:
    Ptr<Interface> tool_;
};
