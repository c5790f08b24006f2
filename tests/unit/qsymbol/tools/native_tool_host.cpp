#include "unit/qsymbol/tools/native_tool_host.h"

#include "base/error.h"
#include "qmath/math_util.h"
#include "support/elements.h"
#include "unit/qsymbol/tools/recorded_target.h"

#include <stdexcept>

namespace tools {

namespace {

using interactions::Long;
using interactions::Outcome;
using interactions::Short;
using interactions::Words;

qmath::Point PointAt(const Words& words, std::size_t first) {
    return {Long(words.at(first)), Long(words.at(first + 1))};
}

qsymbol::ScreenPosition Mouse(const Words& words) {
    return {std::stof(words.at(1)), std::stof(words.at(2))};
}

std::u16string Wide(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

qsymbol::ElementRecord ElementOf(const Words& words) {
    qsymbol::ElementRecord element;
    if (words[0] == "text") {
        element = support::Text(PointAt(words, 3), Wide(words.at(5)));
    } else {
        std::vector<qmath::Point> points;
        for (std::size_t i = 5; i + 1 < words.size(); i += 2)
            points.push_back(PointAt(words, i));
        element = words[0] == "circle" ? support::Circle(points.at(0), Long(words.back()), Long(words.at(4)))
                                       : support::Poly(points, words[0] == "polygon", Long(words.at(4)));
        element.lineWidth = Long(words.at(3));
    }
    element.mainColor = Long(words.at(2));
    return element;
}

} // namespace

void NativeToolHost::SetUp(const Words& line) {
    const std::string& what = line.at(0);
    if (what == "tool") {
        group_ = line.at(1) == "group";
    } else if (what == "scale") {
        scale_ = std::stod(line.at(1));
    } else if (what == "pen") {
        surface_.drawMode = Long(line.at(1));
        surface_.drawWidth = Long(line.at(2));
        surface_.drawStyle = Long(line.at(3));
        surface_.foreColor = Long(line.at(4));
        surface_.fillStyle = Long(line.at(5));
    } else if (what == "symbol") {
        qsymbol::Symbol symbol;
        symbol.refX = Long(line.at(2));
        symbol.refY = Long(line.at(3));
        symbols_[line.at(1)] = std::make_shared<ValueSymbol>(symbol);
        input_.Init(symbols_[line.at(1)]);
    } else if (what == "ref") {
        groupTool_.AddSymref(Long(line.at(1)), PointAt(line, 2), qmath::DegToRad(std::stod(line.at(4))),
                             line.at(5) == "none" ? nullptr : symbols_.at(line.at(5)));
    } else {
        symbols_.at(line.at(1))->value.elements.push_back(ElementOf(line));
    }
}

qsymbol::PlacingTool& NativeToolHost::Tool() {
    return group_ ? static_cast<qsymbol::PlacingTool&>(groupTool_) : input_;
}

/// Data operations raise, events report; the move of a single symbol says nothing.
std::string NativeToolHost::WayOfErrors(const std::string& member) const {
    if (member == "Draw" || member == "AddSymref" || member.starts_with("Get"))
        return "raised";
    if (!group_ && member == "MouseMove")
        return "silent";
    return (group_ ? "CSymTool." : "CSymInput.") + (member == "MouseDownReal" ? "MouseDown" : member);
}

Outcome NativeToolHost::Perform(const interactions::Event& event) {
    const Words& words = event.words;
    if (words[0] == "fail") {
        surface_.failing = words.size() > 1 ? words[1] : "";
        return {};
    }
    RecordedTarget target(surface_, scale_);
    Outcome outcome;
    try {
        outcome.state = Act(words, target);
    } catch (const base::Error& error) {
        outcome.error = {std::to_string(error.Number()), WayOfErrors(words[0])};
    }
    if (outcome.state.empty())
        outcome.state = State();
    return outcome;
}

std::string NativeToolHost::Act(const Words& event, qsymbol::DrawingTarget& target) {
    const std::string& member = event[0];
    if (member == "Draw")
        Tool().Draw(target);
    else if (member == "MouseMove")
        Tool().MouseMove(Mouse(event), target);
    else if (group_)
        return ActOnGroup(event, target);
    else if (member == "MouseDown")
        input_.MouseDown(Mouse(event), target);
    else if (member == "KeyUp")
        input_.KeyUp(Short(event.at(1)), Short(event.at(2)), target);
    else if (member == "SetOldLogPos")
        input_.SetOldLogPos(PointAt(event, 1));
    else if (member == "Angle")
        input_.SetAngle(qmath::DegToRad(std::stod(event.at(1))));
    else
        throw std::runtime_error("no such event: " + member);
    return {};
}

std::string NativeToolHost::ActOnGroup(const Words& event, qsymbol::DrawingTarget& target) {
    const std::string& member = event[0];
    const auto told = [](const std::optional<qsymbol::SymbolPosition>& place) {
        return place ? interactions::PlaceText(place->at.x, place->at.y, place->angle) : "untouched";
    };
    if (member == "MouseDown")
        groupTool_.MouseDown(Mouse(event), target);
    else if (member == "MouseDownReal")
        groupTool_.MouseDownReal(PointAt(event, 1), event.size() > 3, target);
    else if (member == "KeyUp")
        groupTool_.KeyUp(Short(event.at(1)), target);
    else if (member == "SetMoveStartPos")
        groupTool_.SetMoveStartPos(PointAt(event, 1));
    else if (member == "AddSymref")
        SetUp(Words{"ref", event.at(1), event.at(2), event.at(3), event.at(4), event.at(5)});
    else if (member == "GetObjIdByPos")
        return std::to_string(groupTool_.GetObjIdByPos(Long(event.at(1))));
    else if (member == "GetSymrefDataById")
        return told(groupTool_.GetSymrefDataById(Long(event.at(1))));
    else if (member == "GetSymrefDataByPos")
        return told(groupTool_.GetSymrefDataByPos(Long(event.at(1))));
    else
        throw std::runtime_error("no such event: " + member);
    return {};
}

std::string NativeToolHost::State() {
    std::string state = Tool().Ready() ? "ready" : "open";
    if (!group_) {
        const auto& at = input_.Position();
        return state + " " + interactions::PlaceText(at ? at->x : -1, at ? at->y : -1, input_.Angle());
    }
    for (std::int32_t i = 1; i <= groupTool_.SymRefCount(); ++i) {
        const auto place = groupTool_.GetSymrefDataByPos(i);
        state += ", " + std::to_string(groupTool_.GetObjIdByPos(i)) + ": ";
        state += place ? interactions::PlaceText(place->at.x, place->at.y, place->angle) : "nowhere";
    }
    return state;
}

std::vector<std::string> NativeToolHost::TakeAccesses() {
    std::vector<std::string> accesses = surface_.Take();
    std::erase(accesses, "Kind?"); // a control's type is no property of it
    return accesses;
}

} // namespace tools
