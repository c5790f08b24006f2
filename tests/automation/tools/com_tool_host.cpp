#include "tools/com_tool_host.h"

#include "support/automation_test.h"
#include "support/dispatch.h"
#include "support/text.h"

#include <numbers>
#include <stdexcept>

namespace tools {

namespace {

using interactions::Long;
using interactions::Outcome;
using interactions::Short;
using interactions::Words;
using support::Dispatch;
using support::Failure;
using support::Ref;
using support::Value;

constexpr const wchar_t* kSymbolPath = L"C:\\symbols\\";

double Radians(const std::string& degrees) {
    return std::stod(degrees) * std::numbers::pi / 180;
}

POINT PointAt(const Words& words, std::size_t first) {
    return {Long(words.at(first)), Long(words.at(first + 1))};
}

support::ElementSpec ElementOf(const Words& words) {
    support::ElementSpec element;
    element.mainColor = Long(words.at(2));
    if (words[0] == "text") {
        element.type = symText;
        element.points = {PointAt(words, 3)};
        element.text = support::Widen(words.at(5));
        element.font = support::FontSpec();
        return element;
    }
    element.lineWidth = Long(words.at(3));
    element.fillColor = Long(words.at(4));
    for (std::size_t i = 5; i + 1 < words.size(); i += 2)
        element.points.push_back(PointAt(words, i));
    element.type = words[0] == "circle" ? symCircle : symPoly;
    element.closed = words[0] == "polygon";
    if (words[0] == "circle")
        element.radius = Long(words.back());
    return element;
}

/// "ForeColor?" as the picture box logs it, or the beginning of it.
std::string Logged(const std::string& access) {
    const auto equals = access.find('=');
    if (equals != std::string::npos)
        return "put " + access.substr(0, equals) + " " + access.substr(equals + 1);
    return "get " + access.substr(0, access.find('?'));
}

std::string Told(const std::string& logged) {
    const Words words = interactions::WordsOf(logged);
    if (words[0] == "get")
        return words[1] + "?";
    if (words[0] == "put")
        return words[1] + "=" + words[2];
    return "Line (" + words[2] + "," + words[3] + ") (" + words[4] + "," + words[5] + ")";
}

Failure SurfaceFailure() {
    return support::RunTimeError(438, L"PlanBox");
}

/// The number of a run-time error with this text; 0 for any other text.
int NumberOf(const std::wstring& description) {
    for (const int number : {5, 6, 91, 438, 457})
        if (support::RunTimeError(number).description == description)
            return number;
    return 0;
}

Words Raised(const Failure& failure) {
    const int number = NumberOf(failure.description);
    EXPECT_EQ(failure, number == 438 ? SurfaceFailure() : support::RunTimeError(number));
    return {std::to_string(number), "raised"};
}

Words Shown(const support::Box& box) {
    const auto end = box.text.find(L"\r\n");
    EXPECT_EQ(box, support::ErrorBox(box.text));
    if (end == std::wstring::npos)
        return {support::Narrow(box.text)};
    return {std::to_string(NumberOf(box.text.substr(end + 2))), support::Narrow(box.text.substr(0, end))};
}

} // namespace

void ComToolHost::SetUp(const Words& line) {
    const std::string& what = line.at(0);
    if (what == "tool") {
        group_ = line.at(1) == "group";
    } else if (what == "scale") {
        scale_ = std::stod(line.at(1));
    } else if (what == "pen") {
        const wchar_t* const properties[] = {L"DrawMode", L"DrawWidth", L"DrawStyle", L"ForeColor",
                                             L"FillStyle"};
        for (std::size_t i = 0; i < 5; ++i)
            box_->SetProperty(properties[i], Long(line.at(i + 1)));
    } else if (what == "symbol") {
        placed_ = line.at(1);
        specs_[placed_].reference = PointAt(line, 2);
    } else if (what == "ref") {
        references_.push_back(line);
    } else {
        specs_.at(line.at(1)).elements.push_back(ElementOf(line));
    }
}

Ref<_CSymbol> ComToolHost::Symbol(const std::string& name) {
    if (name == "none")
        return {};
    Ref<_CSymbol>& symbol = symbols_[name];
    const SymbolSpec& spec = specs_.at(name);
    if (!symbol && spec.elements.empty())
        symbol = support::NewSymbol();
    else if (!symbol)
        symbol = support::NewSymbol(spec.reference.x, spec.reference.y, 0, 0, spec.elements);
    return symbol;
}

/// Makes the tool when the first event comes: a symbol for an input lies in a catalogue.
void ComToolHost::Start() {
    trans_ = support::NewTrans(scale_);
    if (group_) {
        tool_ = support::Create<CSymTool, _CSymTool>();
        for (const Words& line : references_) {
            EXPECT_OK(tool_->AddSymref(Long(line.at(1)), Long(line.at(2)), Long(line.at(3)),
                                       Radians(line.at(4)), Symbol(line.at(5)).Get()));
        }
        return;
    }
    const std::wstring name = support::Widen(placed_);
    Ref<_CSymbol> symbol = Symbol(placed_);
    EXPECT_OK(symbol->put_FilePath(support::Bstr(kSymbolPath + name + L".syb")));
    const Ref<_CSymbolColl> catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    EXPECT_OK(catalogue->AppendRef(symbol.InOut()));
    EXPECT_OK(catalogue->GetSymInput(support::Bstr(name), input_.Put()));
    if (!input_)
        throw std::runtime_error("no tool for the symbol");
}

Outcome ComToolHost::Perform(const interactions::Event& event) {
    if (!input_ && !tool_)
        Start();
    if (event.words[0] == "fail") {
        failing_ = event.words.size() > 1 ? event.words[1] : "";
        box_->Heal();
        if (!failing_.empty())
            box_->Fail(Logged(failing_), SurfaceFailure());
        return {};
    }
    const bool boxComes = event.error.size() > 1 && event.error[1].find('.') != std::string::npos;
    support::MessageBoxes boxes = boxComes ? support::MessageBoxes{IDOK} : support::MessageBoxes{};
    Outcome outcome;
    const Failure failure =
        road_ == Road::LateBound ? ActLate(event.words, outcome.state) : Act(event.words, outcome.state);
    if (failure != Failure{})
        outcome.error = Raised(failure);
    else if (!boxes.Seen().empty())
        outcome.error = Shown(boxes.Seen().front());
    if (outcome.state.empty())
        outcome.state = State();
    return outcome;
}

Failure ComToolHost::Act(const Words& event, std::string& answer) {
    const std::string& member = event[0];
    IDispatch* const box = box_.Get();
    _CTrans* const trans = trans_.Get();
    const auto long_ = [&](std::size_t i) { return Long(event.at(i)); };
    const auto single = [&](std::size_t i) { return std::stof(event.at(i)); };
    if (!group_) {
        if (member == "Draw")
            return support::Outcome(input_->Draw(box, trans));
        if (member == "MouseMove")
            return support::Outcome(input_->MouseMove(single(1), single(2), box, trans));
        if (member == "MouseDown")
            return support::Outcome(input_->MouseDown(single(1), single(2), box, trans));
        if (member == "KeyUp")
            return support::Outcome(input_->KeyUp(Short(event.at(1)), Short(event.at(2)), box, trans));
        if (member == "SetOldLogPos")
            return support::Outcome(input_->SetOldLogPos(long_(1), long_(2)));
        if (member == "Angle")
            return support::Outcome(input_->put_Angle(Radians(event.at(1))));
        throw std::runtime_error("no such event: " + member);
    }
    if (member == "Draw")
        return support::Outcome(tool_->Draw(box, trans));
    if (member == "MouseMove")
        return support::Outcome(tool_->MouseMove(single(1), single(2), box, trans));
    if (member == "MouseDown")
        return support::Outcome(tool_->MouseDown(single(1), single(2), box, trans));
    if (member == "KeyUp")
        return support::Outcome(tool_->KeyUp(Short(event.at(1)), Short(event.at(2)), box, trans));
    if (member == "SetMoveStartPos")
        return support::Outcome(tool_->SetMoveStartPos(long_(1), long_(2)));
    if (member == "MouseDownReal") {
        VARIANT_BOOL relative = event.size() > 3 ? VARIANT_TRUE : VARIANT_FALSE;
        return support::Outcome(tool_->MouseDownReal(long_(1), long_(2), box, trans, &relative));
    }
    if (member == "AddSymref")
        return support::Outcome(
            tool_->AddSymref(long_(1), long_(2), long_(3), Radians(event.at(4)), Symbol(event.at(5)).Get()));
    LONG id = -77;
    if (member == "GetObjIdByPos") {
        const Failure failure = support::Outcome(tool_->GetObjIdByPos(long_(1), &id));
        answer = std::to_string(id);
        return failure;
    }
    LONG x = -77;
    LONG y = -77;
    double angle = -77;
    Failure failure;
    if (member == "GetSymrefDataById")
        failure = support::Outcome(tool_->GetSymrefDataById(long_(1), &x, &y, &angle));
    else if (member == "GetSymrefDataByPos")
        failure = support::Outcome(tool_->GetSymrefDataByPos(long_(1), &id, &x, &y, &angle));
    else
        throw std::runtime_error("no such event: " + member);
    const bool untouched = x == -77 && y == -77 && angle == -77 && id == -77;
    answer = untouched ? "untouched" : interactions::PlaceText(x, y, angle);
    return failure;
}

/// By name, with the variables of a script host.
Failure ComToolHost::ActLate(const Words& event, std::string& answer) {
    const std::string& member = event[0];
    const Dispatch object = group_ ? Dispatch(tool_) : Dispatch(input_);
    const std::wstring name = support::Widen(member);
    const auto call = [&](const std::vector<Value>& arguments) {
        const support::Answer called = object.Call(name.c_str(), arguments);
        if (SUCCEEDED(called.status))
            return Failure{};
        EXPECT_EQ(called.status, DISP_E_EXCEPTION);
        return called.failure;
    };
    if (member == "Draw")
        return call({box_, trans_});
    if (member == "MouseMove" || member == "MouseDown")
        return call({std::stof(event.at(1)), std::stof(event.at(2)), box_, trans_});
    if (member == "KeyUp")
        return call({Short(event.at(1)), Short(event.at(2)), box_, trans_});
    if (member == "SetOldLogPos" || member == "SetMoveStartPos")
        return call({Long(event.at(1)), Long(event.at(2))});
    if (member == "Angle")
        return object.Put(L"Angle", Radians(event.at(1))).failure;
    if (member == "MouseDownReal") {
        std::vector<Value> arguments{Long(event.at(1)), Long(event.at(2)), box_, trans_};
        if (event.size() > 3)
            arguments.push_back(true);
        return call(arguments);
    }
    if (member == "AddSymref")
        return call({Long(event.at(1)), Long(event.at(2)), Long(event.at(3)), Radians(event.at(4)),
                     Symbol(event.at(5))});
    if (member == "GetObjIdByPos") {
        const support::Answer called = object.Call(L"GetObjIdByPos", {Long(event.at(1))});
        answer = SUCCEEDED(called.status) ? std::to_string(called.value.Long()) : "failed";
        return called.failure;
    }
    Value id;
    Value x;
    Value y;
    Value angle;
    std::vector<Value> arguments{Long(event.at(1)), Value::Variable(id), Value::Variable(x),
                                 Value::Variable(y), Value::Variable(angle)};
    if (member == "GetSymrefDataById")
        arguments.erase(arguments.begin() + 1);
    const Failure failure = call(arguments);
    // Variables that were empty and were not set stand for 0.
    const bool untouched = failure == Failure{} && x.Long() == 0 && y.Long() == 0 && angle.Double() == 0;
    answer = failure != Failure{} ? "failed"
             : untouched          ? "untouched"
                                  : interactions::PlaceText(x.Long(), y.Long(), angle.Double());
    return failure;
}

std::string ComToolHost::State() {
    VARIANT_BOOL ready = VARIANT_FALSE;
    EXPECT_OK(group_ ? tool_->get_Ready(&ready) : input_->get_Ready(&ready));
    std::string state = ready == VARIANT_TRUE ? "ready" : "open";
    if (!group_) {
        LONG x = 0;
        LONG y = 0;
        double angle = 0;
        EXPECT_OK(input_->get_PosX(&x));
        EXPECT_OK(input_->get_PosY(&y));
        EXPECT_OK(input_->get_Angle(&angle));
        return state + " " + interactions::PlaceText(x, y, angle);
    }
    LONG count = 0;
    EXPECT_OK(tool_->get_SymRefCount(&count));
    for (LONG i = 1; i <= count; ++i) {
        LONG id = 0;
        EXPECT_OK(tool_->GetObjIdByPos(i, &id));
        LONG told = id - 1;
        LONG x = 0;
        LONG y = 0;
        double angle = 0;
        EXPECT_OK(tool_->GetSymrefDataByPos(i, &told, &x, &y, &angle));
        state += ", " + std::to_string(id) + ": ";
        state += told == id ? interactions::PlaceText(x, y, angle) : "nowhere";
    }
    return state;
}

std::vector<std::string> ComToolHost::TakeAccesses() {
    std::vector<std::string> accesses;
    for (const std::string& logged : box_->Log()) {
        // The device context is read wherever the library wants it, and what fails has not happened.
        const bool failed = !failing_.empty() && logged.starts_with(Logged(failing_));
        if (logged != "get hDC" && !failed)
            accesses.push_back(Told(logged));
    }
    box_->ClearLog();
    return accesses;
}

bool ComToolHost::Sees(const std::string& access) const {
    if (access.starts_with("TextAlign=") || access.starts_with("BkMode="))
        return false;
    return access.ends_with('?') || access.find('=') != std::string::npos || access.starts_with("Line ");
}

} // namespace tools
