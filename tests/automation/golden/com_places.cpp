#include "golden/com_places.h"

namespace golden {

using support::Dispatch;
using support::Failure;
using support::Outcome;
using support::Ref;
using support::Value;

namespace {

Failure Bounds(const Step& step, const ComSubject& subject, Lines& outputs) {
    Ref<_CRect> rect;
    const double angle = Radians(step.words.at(3));
    const Failure failure =
        subject.Late() ? subject.Call(L"GetBoundingRect", {X(step), X(step, 2), angle, Value::Variable(rect)})
                       : Outcome(subject.symbol->GetBoundingRect(X(step), X(step, 2), angle, rect.Put()));
    if (failure != Failure{})
        return failure;
    std::string told;
    for (const wchar_t* const edge : {L"Left", L"Top", L"Right", L"Bottom"})
        told += (told.empty() ? "" : " ") + std::to_string(Dispatch(rect).Get(edge).value.Long());
    outputs.push_back(told);
    return {};
}

Failure Hit(const Step& step, const ComSubject& subject, Lines& outputs) {
    const double angle = Radians(step.words.at(3));
    Ref<_CRect> rect;
    if (step.words.size() > 6) {
        rect = support::Create<CRect, _CRect>();
        EXPECT_OK(rect->put_Left(X(step, 4)));
        EXPECT_OK(rect->put_Top(X(step, 5)));
        EXPECT_OK(rect->put_Right(X(step, 6)));
        EXPECT_OK(rect->put_Bottom(X(step, 7)));
    }
    VARIANT_BOOL hit = VARIANT_FALSE;
    Failure failure;
    if (subject.Late()) {
        std::vector<Value> arguments{X(step), X(step, 2), angle, subject.trans};
        if (rect)
            arguments.emplace_back(rect);
        else
            arguments.insert(arguments.end(), {X(step, 4), X(step, 5)});
        const support::Answer answer =
            Dispatch(subject.symbol).Call(rect ? L"ObjIdentByRect" : L"ObjIdentByPt", arguments);
        failure = answer.failure;
        if (failure == Failure{})
            hit = answer.value.Bool() ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (rect) {
        failure = Outcome(subject.symbol->ObjIdentByRect(X(step), X(step, 2), angle, subject.trans.Get(),
                                                         rect.Get(), &hit));
    } else {
        failure = Outcome(subject.symbol->ObjIdentByPt(X(step), X(step, 2), angle, subject.trans.Get(),
                                                       X(step, 4), X(step, 5), &hit));
    }
    if (failure == Failure{})
        outputs.emplace_back(hit != VARIANT_FALSE ? "yes" : "no");
    return failure;
}

Failure Catch(const Step& step, const ComSubject& subject, Lines& outputs) {
    const double angle = Radians(step.words.at(3));
    const float oldX = std::stof(step.words.at(4));
    const float oldY = std::stof(step.words.at(5));
    const auto range = static_cast<SHORT>(X(step, 6));
    float x = oldX;
    float y = oldY;
    LONG worldX = -77;
    LONG worldY = -88;
    VARIANT_BOOL caught = VARIANT_FALSE;
    Failure failure;
    if (subject.Late()) {
        const support::Answer answer =
            Dispatch(subject.symbol)
                .Call(L"CatchPt",
                      {Value::Variable(x), Value::Variable(y), Value::Variable(worldX),
                       Value::Variable(worldY), X(step), X(step, 2), angle, subject.trans, range});
        failure = answer.failure;
        if (failure == Failure{})
            caught = answer.value.Bool() ? VARIANT_TRUE : VARIANT_FALSE;
    } else {
        failure = Outcome(subject.symbol->CatchPt(&x, &y, &worldX, &worldY, X(step), X(step, 2), angle,
                                                  subject.trans.Get(), range, &caught));
    }
    const auto told = [](auto a, auto b) {
        return std::to_string(static_cast<LONG>(a)) + "," + std::to_string(static_cast<LONG>(b));
    };
    if (caught == VARIANT_FALSE) {
        const bool untouched = (x == oldX || x != x) && y == oldY && worldX == -77 && worldY == -88;
        EXPECT_TRUE(untouched) << "what is not caught changes nothing";
    }
    if (failure == Failure{})
        outputs.push_back(caught != VARIANT_FALSE ? told(worldX, worldY) + " at " + told(x, y) : "no");
    return failure;
}

} // namespace

void SetFactors(double printer, double screen) {
    LONG noMark = -1; // the marshaller refuses null
    EXPECT_OK(support::NewSymbol()->Draw(0, 0, 0, nullptr, nullptr, printer, screen, &noMark));
}

std::optional<Failure> ActOnPlaces(const Step& step, ComSubject& subject, Lines& outputs) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "scale")
        subject.trans = support::NewTrans(std::stod(words.at(1)), words.size() > 2 ? X(step, 2) : 0,
                                          words.size() > 3 ? X(step, 3) : 0);
    else if (command == "factors")
        SetFactors(std::stod(words.at(1)), std::stod(words.at(2)));
    else if (command == "bounds")
        return Bounds(step, subject, outputs);
    else if (command == "hit")
        return Hit(step, subject, outputs);
    else if (command == "catch")
        return Catch(step, subject, outputs);
    else
        return {};
    return Failure{};
}

} // namespace golden
