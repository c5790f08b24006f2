#include "golden/com_surface.h"

#include "golden/com_elements.h"
#include "support/text.h"

#include <algorithm>

namespace golden {

using support::Dispatch;
using support::Failure;
using support::Outcome;
using support::Ref;
using support::Value;
using support::Widen;

namespace {

/// Read wherever the library wants them.
constexpr const char* kUntold[] = {"get hDC", "get ScaleWidth", "get ScaleHeight"};

/// "get Name" or "put ForeColor 255", as the picture box logs it, as the cases tell it, and back.
std::string Access(const std::string& logged) {
    const Lines words = WordsOf(logged);
    if (words[0] == "get")
        return words[1] + "?";
    if (words[0] == "put")
        return words[1] + "=" + words[2];
    return "Line (" + words[2] + "," + words[3] + ") (" + words[4] + "," + words[5] + ")";
}
std::string Logged(const std::string& access) {
    if (access.ends_with('?'))
        return "get " + access.substr(0, access.size() - 1);
    return "put " + access.substr(0, access.find('='));
}

} // namespace

Lines ComSurface::TakeAccesses() {
    Lines accesses;
    if (!box_)
        return accesses;
    for (const std::string& logged : box_->Log())
        if (std::find(std::begin(kUntold), std::end(kUntold), logged) == std::end(kUntold) &&
            (failing_.empty() || !logged.starts_with(Logged(failing_))))
            accesses.push_back(Access(logged));
    box_->ClearLog();
    return accesses;
}

std::optional<Failure> ComSurface::Do(const Step& step, const ComSubject& subject) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "surface") {
        box_ = support::PictureBox::Create(canvas_, Widen(words.at(1)),
                                           words.size() > 2 ? L"Printer" : L"PictureBox");
        return Failure{};
    }
    if (!box_)
        box_ = support::PictureBox::Create(canvas_, L"Picture1");
    if (command == "mode") {
        box_->SetProperty(L"DrawMode", X(step));
    } else if (command == "fails") {
        failing_ = words.size() > 1 ? words[1] : "";
        box_->Heal();
        if (!failing_.empty())
            box_->Fail(Logged(failing_), support::RunTimeError(438));
    } else if (command == "draw") {
        return Draw(step, subject);
    } else if (command == "elements" || command == "element" || command == "tracker") {
        return DrawElements(step, subject);
    } else if (command == "fit") {
        box_->SetScale(std::stod(words.at(1)), std::stod(words.at(2)));
        const Failure failure = subject.Late() ? subject.Call(L"Draw2PBox", {box_})
                                               : Outcome(subject.symbol->Draw2PBox(box_.Get()));
        return failure;
    } else {
        return {};
    }
    return Failure{};
}

Failure ComSurface::Draw(const Step& step, const ComSubject& subject) const {
    const Lines& words = step.words;
    const double printer = words.size() > 5 ? std::stod(words[4]) : 1;
    const double screen = words.size() > 5 ? std::stod(words[5]) : 1;
    LONG mark = words.size() > 6 ? Long(words[6]) : -1;
    const double angle = Radians(words.at(3));
    if (!subject.Late())
        return Outcome(subject.symbol->Draw(X(step), X(step, 2), angle, box_.Get(), subject.trans.Get(),
                                            printer, screen, &mark));
    std::vector<Value> arguments{X(step), X(step, 2), angle, box_, subject.trans, printer, screen};
    if (words.size() > 6)
        arguments.push_back(Value::Variable(mark));
    return subject.Call(L"Draw", arguments);
}

Failure ComSurface::DrawElements(const Step& step, const ComSubject& subject) const {
    if (step.words[0] == "elements") {
        const Ref<_CSymElementColl> elements = support::NewElements(SpecsOf(step.payload));
        if (subject.Late())
            return Dispatch(elements).Call(L"Draw", {box_, subject.trans}).failure;
        return Outcome(elements->Draw(box_.Get(), subject.trans.Get()));
    }
    const Ref<_CSymElement> element = support::NewElement(SpecOf(step.payload.at(0)));
    const bool tracker = step.words[0] == "tracker";
    if (subject.Late())
        return Dispatch(element).Call(tracker ? L"DrawTracker" : L"Draw", {box_, subject.trans}).failure;
    return Outcome(tracker ? element->DrawTracker(box_.Get(), subject.trans.Get())
                           : element->Draw(box_.Get(), subject.trans.Get()));
}

} // namespace golden
