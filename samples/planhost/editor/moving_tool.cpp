#include "moving_tool.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

MovingTool::MovingTool(const PlanDocument& document, Outcome outcome, std::optional<POINT> base)
    : LibraryTool(Create<_CSymTool>(__uuidof(CSymTool))), symbols_(document.MarkedSymbols()),
      places_(document.Marks().Places()), outcome_(outcome) {
    std::vector<_CSymbol*> found;
    for (const std::size_t place : places_)
        found.push_back(document.Symbols()[place].Get());
    Add(base, found);
}

MovingTool::MovingTool(std::vector<PlacedSymbol> symbols, const std::vector<Ptr<_CSymbol>>& found)
    : LibraryTool(Create<_CSymTool>(__uuidof(CSymTool))), symbols_(std::move(symbols)), outcome_(Copied) {
    std::vector<_CSymbol*> objects;
    for (const Ptr<_CSymbol>& symbol : found)
        objects.push_back(symbol.Get());
    Add(std::nullopt, objects);
}

void MovingTool::Add(std::optional<POINT> base, const std::vector<_CSymbol*>& found) {
    const SymbolGroup group = MakeGroup(symbols_, base.value_or(symbols_.front().at));
    for (std::size_t i = 0; i < symbols_.size(); ++i) {
        const auto& [delta, angle] = group.members[i];
        Check(tool_->AddSymref(static_cast<LONG>(i), delta.x, delta.y, angle, found[i]));
    }
    Check(tool_->SetMoveStartPos(group.base.x, group.base.y));
    anchor_ = group.members.front().delta;
}

void MovingTool::MouseDown(PlanView& view, const Pointer& pointer) {
    if (pointer.caught)
        MoveTo(view, *pointer.caught, false);
    else
        LibraryTool::MouseDown(view, pointer);
}

void MovingTool::MoveTo(PlanView& view, POINT to, bool isRelative) {
    VARIANT_BOOL relative = isRelative ? VARIANT_TRUE : VARIANT_FALSE;
    if (!isRelative) { // the insertion point lands there, wherever the mouse has hold of it
        const auto [x, y] = Anchor();
        to = {to.x - x, to.y - y};
    }
    Check(tool_->MouseDownReal(to.x, to.y, &view.Box(), &view.Transformation(), &relative));
}

/// The tool knows the numeric keypad's keys: a direction each, and four that turn by one and ten degrees.
void MovingTool::Turn(PlanView& view, const TurnKey& key) {
    constexpr short kDirections[] = {VK_NUMPAD8, VK_NUMPAD7, VK_NUMPAD4, VK_NUMPAD1,
                                     VK_NUMPAD2, VK_NUMPAD3, VK_NUMPAD6, VK_NUMPAD9};
    const auto press = [&](short code) { Check(tool_->KeyUp(code, 0, &view.Box(), &view.Transformation())); };
    if (key.kind == TurnKey::To)
        return press(kDirections[key.degrees / 45]);
    const int left = std::abs(key.degrees);
    for (int i = 0; i < left / 10; ++i)
        press(key.degrees > 0 ? VK_DIVIDE : VK_MULTIPLY);
    for (int i = 0; i < left % 10; ++i)
        press(key.degrees > 0 ? VK_SUBTRACT : VK_ADD);
}

void MovingTool::Finish(PlanDocument& document) {
    LONG count = 0;
    Check(tool_->get_SymRefCount(&count));
    std::vector<PlacedSymbol> changed = symbols_;
    for (LONG position = 1; position <= count; ++position) {
        LONG number = 0;
        POINT at{};
        double radians = 0;
        Check(tool_->GetSymrefDataByPos(position, &number, &at.x, &at.y, &radians));
        changed[number].at = at;
        changed[number].angle = DegreesOf(radians);
    }
    if (outcome_ == Moved)
        return document.Replace(places_, changed);
    for (PlacedSymbol& copy : changed)
        copy.line = 0;
    document.Add(changed, true);
}

POINT MovingTool::Anchor() const {
    const double turned =
        Radians({{}, {}, Direction().value_or(symbols_.front().angle) - symbols_.front().angle});
    const double sine = std::sin(turned);
    const double cosine = std::cos(turned);
    return {std::lround(anchor_.x * cosine + anchor_.y * sine),
            std::lround(anchor_.y * cosine - anchor_.x * sine)};
}

const PlacedPlan* MovingTool::Catchable(const PlanDocument& document) {
    if (outcome_ == Copied)
        return &document.Placed();
    if (!others_) {
        std::vector<PlacedSymbol> others = document.Content().symbols;
        for (auto place = places_.rbegin(); place != places_.rend(); ++place)
            others.erase(others.begin() + static_cast<std::ptrdiff_t>(*place));
        others_.emplace(others, document.Catalogue());
    }
    return &*others_;
}

std::optional<double> MovingTool::Direction() const {
    constexpr double kNone = -1000;
    LONG number = 0;
    POINT at{};
    double radians = kNone;
    Check(tool_->GetSymrefDataByPos(1, &number, &at.x, &at.y,
                                    &radians)); // leaves all as it is before the first move
    return radians == kNone ? std::nullopt : std::optional(DegreesOf(radians));
}

std::wstring MovingTool::Hint() const {
    const wchar_t* verb = outcome_ == Moved ? L"Verschieben" : places_.empty() ? L"Einfügen" : L"Duplizieren";
    return verb + std::wstring(L": Klick setzt; Bild auf/ab, Pfeile, Pos1/Ende drehen; Zahlen für eine "
                               L"Stelle; Esc bricht ab");
}
