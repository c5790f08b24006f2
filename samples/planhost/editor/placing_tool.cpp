#include "placing_tool.h"

#include "../text.h"
#include "symbol_group.h"

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
                         std::optional<POINT> from)
    : LibraryTool(MakeTool(catalogue, name)), name_(name), from_(from.value_or(POINT{})) {
    Check(tool_->put_Angle(Radians({name, {}, degrees})));
    if (from)
        Check(tool_->SetOldLogPos(from->x, from->y));
}

void PlacingTool::MouseDown(PlanView& view, const Pointer& pointer) {
    LibraryTool::MouseDown(view, pointer);
    exact_ = pointer.caught;
}

void PlacingTool::MoveTo(PlanView& view, POINT to, bool isRelative) {
    if (isRelative)
        to = {to.x + from_.x, to.y + from_.y};
    MouseDown(view, {view.Map().ToPixel(to), to});
}

/// The tool knows six keys. For a direction its angle is set between two drawings: the first takes the image away.
void PlacingTool::Turn(PlanView& view, const TurnKey& key) {
    const auto press = [&](short code) { Check(tool_->KeyUp(code, 0, &view.Box(), &view.Transformation())); };
    if (key.kind == TurnKey::To) {
        Draw(view);
        Check(tool_->put_Angle(Radians({name_, {}, static_cast<double>(key.degrees)})));
        return Draw(view);
    }
    switch (key.degrees) {
    case 90: return press(VK_HOME);
    case -90: return press(VK_END);
    case 10: return press(VK_PRIOR);
    case -10: return press(VK_NEXT);
    default: return press(key.degrees > 0 ? VK_UP : VK_DOWN);
    }
}

void PlacingTool::Finish(PlanDocument& document) {
    PlacedSymbol placed{name_, {}, *Direction()};
    Check(tool_->get_PosX(&placed.at.x));
    Check(tool_->get_PosY(&placed.at.y));
    if (exact_)
        placed.at = *exact_; // the tool knows its pixel only
    document.Add({placed});
}

std::optional<double> PlacingTool::Direction() const {
    double radians = 0;
    Check(tool_->get_Angle(&radians));
    return DegreesOf(radians);
}

std::wstring PlacingTool::Hint() const {
    return name_ +
           L": Klick setzt; Bild auf/ab, Pfeile, Pos1/Ende drehen; Zahlen für eine Stelle; Esc bricht ab";
}
