#include "moving_tool.h"

#include "tool_keys.h"

MovingTool::MovingTool(const PlanDocument& document, Outcome outcome)
    : LibraryTool(Create<_CSymTool>(__uuidof(CSymTool))), outcome_(outcome) {
    const SymbolGroup group = MakeGroup(document.Content().symbols, document.Marks().Places());
    for (const GroupMember& member : group.members)
        Check(tool_->AddSymref(static_cast<LONG>(member.place), member.delta.x, member.delta.y, member.angle,
                               document.Symbols()[member.place].Get()));
    Check(tool_->SetMoveStartPos(group.base.x, group.base.y));
}

void MovingTool::MouseDown(PlanView& view, const Pointer& pointer) {
    if (pointer.caught)
        MoveTo(view, *pointer.caught, false);
    else
        LibraryTool::MouseDown(view, pointer);
}

void MovingTool::MoveTo(PlanView& view, POINT to, bool isRelative) {
    VARIANT_BOOL relative = isRelative ? VARIANT_TRUE : VARIANT_FALSE;
    Check(tool_->MouseDownReal(to.x, to.y, &view.Box(), &view.Transformation(), &relative));
}

void MovingTool::KeyUp(PlanView& view, WPARAM key, LPARAM info) {
    Check(tool_->KeyUp(GroupToolKey(key, info), ShiftState(), &view.Box(), &view.Transformation()));
}

void MovingTool::Finish(PlanDocument& document) {
    LONG count = 0;
    Check(tool_->get_SymRefCount(&count));
    std::vector<std::size_t> places;
    std::vector<PlacedSymbol> changed;
    for (LONG position = 1; position <= count; ++position) {
        LONG place = 0;
        POINT at{};
        double radians = 0;
        Check(tool_->GetSymrefDataByPos(position, &place, &at.x, &at.y, &radians));
        places.push_back(static_cast<std::size_t>(place));
        changed.push_back(document.Content().symbols[places.back()]);
        changed.back().at = at;
        changed.back().angle = DegreesOf(radians);
    }
    if (outcome_ == Moved)
        return document.Replace(places, changed);
    const std::size_t first = document.Content().symbols.size();
    for (PlacedSymbol& copy : changed)
        copy.line = 0;
    document.Add(changed);
    document.Marks().SetRange(first, changed.size());
}

std::optional<double> MovingTool::Direction() const {
    constexpr double kNone = -1000;
    LONG place = 0;
    POINT at{};
    double radians = kNone;
    Check(tool_->GetSymrefDataByPos(1, &place, &at.x, &at.y,
                                    &radians)); // leaves all as it is before the first move
    return radians == kNone ? std::nullopt : std::optional(DegreesOf(radians));
}

std::wstring MovingTool::Hint() const {
    return (outcome_ == Moved ? L"Verschieben" : L"Duplizieren") +
           std::wstring(L": Klick setzt; Ziffernblock dreht; Umschalt fängt Punkte; Esc bricht ab");
}
