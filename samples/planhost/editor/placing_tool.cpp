#include "placing_tool.h"

#include "../text.h"
#include "symbol_group.h"
#include "tool_keys.h"

namespace {

/// The library shows its own message when it cannot make the tool, and then there is none.
Ptr<_CSymInput> MakeTool(_CSymbolColl& catalogue, const std::wstring& name) {
    Ptr<_CSymInput> tool;
    Check(catalogue.GetSymInput(Bstr(name).Get(), tool.Put()));
    if (!tool)
        throw Failure{L"Das Symbol \"" + name + L"\" lässt sich nicht setzen."};
    return tool;
}

} // namespace

PlacingTool::PlacingTool(_CSymbolColl& catalogue, const std::wstring& name, double degrees,
                         std::optional<POINT> guideFrom)
    : LibraryTool(MakeTool(catalogue, name)), name_(name) {
    Check(tool_->put_Angle(Radians({name, {}, degrees})));
    if (guideFrom)
        Check(tool_->SetOldLogPos(guideFrom->x, guideFrom->y));
}

void PlacingTool::MouseDown(PlanView& view, const Pointer& pointer) {
    LibraryTool::MouseDown(view, pointer);
    caught_ = pointer.caught;
}

void PlacingTool::KeyUp(PlanView& view, WPARAM key, LPARAM) {
    Check(tool_->KeyUp(static_cast<short>(key), ShiftState(), &view.Box(), &view.Transformation()));
}

void PlacingTool::Finish(PlanDocument& document) {
    PlacedSymbol placed{name_, {}, *Direction()};
    Check(tool_->get_PosX(&placed.at.x));
    Check(tool_->get_PosY(&placed.at.y));
    if (caught_)
        placed.at = *caught_; // the tool knows its pixel only
    document.Add({placed});
}

std::optional<double> PlacingTool::Direction() const {
    double radians = 0;
    Check(tool_->get_Angle(&radians));
    return DegreesOf(radians);
}

std::wstring PlacingTool::Hint() const {
    return name_ +
           L": Klick setzt; Bild auf/ab, Pfeile, Pos1/Ende drehen; Umschalt fängt Punkte; Esc bricht ab";
}
