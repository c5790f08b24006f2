#include "golden/com_host.h"

#include "golden/com_catalogue.h"
#include "golden/com_elements.h"
#include "golden/com_places.h"
#include "support/text.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace golden {

using support::Bstr;
using support::Dispatch;
using support::Failure;
using support::Narrow;
using support::Outcome;
using support::Ref;

namespace {

constexpr int kRunTimeErrors[] = {5, 6, 7, 9, 13, 52, 53, 57, 61, 62, 70, 75, 76, 91, 438, 457};
constexpr const char* kAnswers[] = {"ok", "yes", "no", "abort", "retry", "ignore"};
constexpr int kButtons[] = {IDOK, IDYES, IDNO, IDABORT, IDRETRY, IDIGNORE};

} // namespace

ComHost::ComHost(Road road) : subject_{road} {
    SetFactors(0, 0);
}

ComHost::~ComHost() {
    SetFactors(0, 0);
}

Lines ComHost::Do(const Step& step) {
    outputs_.clear();
    // The first answer of a command stands where its own words end.
    std::vector<int> buttons;
    Step plain = step;
    while (plain.words.size() > 1) {
        const auto* const answer = std::find(std::begin(kAnswers), std::end(kAnswers), plain.words.back());
        if (answer == std::end(kAnswers))
            break;
        buttons.insert(buttons.begin(), kButtons[answer - std::begin(kAnswers)]);
        plain.words.pop_back();
    }
    support::MessageBoxes boxes(buttons);
    surface_.TakeAccesses();
    const Failure failure = Act(plain);
    std::ranges::move(surface_.TakeAccesses(), std::back_inserter(outputs_));
    for (auto box = boxes.Seen().rbegin(); box != boxes.Seen().rend(); ++box)
        outputs_.insert(outputs_.begin(), Told(*box));
    if (failure != Failure{})
        outputs_.push_back(Told(failure));
    return outputs_;
}

bool ComHost::Sees(const std::string& output) const {
    for (const char* const unseen : {"TextAlign=", "BkMode=", "Polyline ", "Polygon ", "Ellipse ", "Arc ",
                                     "Text ", "TextPath ", "Font ", "ReleaseFont", "Invert "})
        if (output.starts_with(unseen))
            return false;
    return true;
}

std::string ComHost::Told(const Failure& failure) const {
    const std::string number = "error " + std::to_string(failure.status & 0xFFFF);
    for (const int known : kRunTimeErrors)
        if (failure == support::RunTimeError(known) || failure == support::RunTimeError(known, L"QMath"))
            return number;
    return number + " " + Narrow(failure.source) + ": " + Narrow(failure.description);
}

std::string ComHost::Told(const support::Box& box) const {
    const std::string told = Escaped(Narrow(files_.WithoutFolder(box.text)));
    if (box.buttons == std::vector{IDYES, IDNO} && box.icon == support::BoxIcon::None)
        return "ask " + Narrow(box.title) + ": " + told;
    EXPECT_EQ(box.title, support::ProgramTitle());
    if (box.buttons == std::vector{IDABORT, IDRETRY, IDIGNORE} && box.icon == support::BoxIcon::Stop)
        return "failure " + told;
    if (box.buttons == std::vector{IDOK} && box.icon == support::BoxIcon::None)
        return "notice " + told;
    return "error " + told;
}

Failure ComHost::Act(const Step& step) {
    if (files_.Do(step, outputs_))
        return {};
    if (const auto failure = ActOnSymbol(step))
        return *failure;
    if (const auto failure = surface_.Do(step, subject_))
        return *failure;
    if (const auto failure = ActOnPlaces(step, subject_, outputs_))
        return *failure;
    throw std::runtime_error("no such command: " + step.words[0]);
}

std::optional<Failure> ComHost::ActOnSymbol(const Step& step) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "symbol") {
        const Ref<_CSymElementColl> elements =
            step.payload.empty() ? Ref<_CSymElementColl>() : support::NewElements(SpecsOf(step.payload));
        if (subject_.Late())
            return subject_.Call(L"CreateNew", {X(step), X(step, 2), X(step, 3), X(step, 4), elements});
        return Outcome(
            subject_.symbol->CreateNew(X(step), X(step, 2), X(step, 3), X(step, 4), elements.Get()));
    }
    if (command == "at") {
        const std::wstring path = words.size() > 1 ? files_.PathOf(words[1]) : L"";
        return subject_.Late() ? Dispatch(subject_.symbol).Put(L"FilePath", path).failure
                               : Outcome(subject_.symbol->put_FilePath(Bstr(path)));
    }
    if (command == "read")
        return subject_.Late() ? subject_.Call(L"ReadFromFile", {})
                               : Outcome(subject_.symbol->ReadFromFile());
    if (command == "write")
        return subject_.Late() ? subject_.Call(L"Write2File", {}) : Outcome(subject_.symbol->Write2File());
    if (command == "show") {
        const Dispatch late(subject_.symbol);
        std::vector<Element> elements;
        for (const support::ElementSpec& spec : support::ElementsOf(subject_.symbol.Get()))
            elements.push_back(ElementOf(spec));
        const auto number = [&](const wchar_t* name) {
            return static_cast<std::int32_t>(late.Get(name).value.Long());
        };
        outputs_ =
            SymbolText(number(L"RefX"), number(L"RefY"), number(L"Width"), number(L"Height"), elements);
        return Failure{};
    }
    if (command == "colour") {
        const auto number = static_cast<SHORT>(X(step));
        LONG colour = -1;
        if (subject_.Late())
            colour =
                Dispatch(subject_.symbol).Call(L"GetColor2ColNr", {number, words.size() > 2}).value.Long();
        else
            EXPECT_OK(subject_.symbol->GetColor2ColNr(number, words.size() > 2 ? VARIANT_TRUE : VARIANT_FALSE,
                                                      &colour));
        outputs_.push_back(std::to_string(colour));
        return Failure{};
    }
    if (command == "dxf")
        return Export(step);
    if (command == "katalog" || command == "liste")
        return LoadCatalogue(step, subject_.road, files_.PathOf(words.at(1)), outputs_);
    return {};
}

Failure ComHost::Export(const Step& step) {
    const std::wstring path = files_.PathOf(step.words.at(5));
    const double angle = Radians(step.words.at(3));
    EXPECT_OK(subject_.symbol->put_Etagenbreite(X(step, 4)));
    if (subject_.Late())
        return subject_.Call(L"DxfExportSym", {X(step), X(step, 2), angle, path});
    return Outcome(subject_.symbol->DxfExportSym(X(step), X(step, 2), angle, Bstr(path)));
}

} // namespace golden
