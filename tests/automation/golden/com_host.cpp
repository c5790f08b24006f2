#include "golden/com_host.h"

#include "support/basic_collection.h"
#include "support/text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace golden {

namespace {

using support::Bstr;
using support::Dispatch;
using support::Failure;
using support::Narrow;
using support::Outcome;
using support::Ref;
using support::Value;
using support::Widen;

constexpr int kRunTimeErrors[] = {5, 6, 7, 9, 13, 52, 53, 57, 61, 62, 70, 75, 76, 91, 438, 457};
constexpr const char* kAnswers[] = {"ok", "yes", "no", "abort", "retry", "ignore"};
/// Read wherever the library wants them.
constexpr const char* kUntold[] = {"get hDC", "get ScaleWidth", "get ScaleHeight"};
constexpr int kButtons[] = {IDOK, IDYES, IDNO, IDABORT, IDRETRY, IDIGNORE};

support::ElementSpec SpecOf(const std::string& line) {
    const Element element = ElementOf(line);
    support::ElementSpec spec;
    spec.type = element.type;
    for (const Spot& point : element.points)
        spec.points.push_back({point.x, point.y});
    spec.closed = element.closed;
    spec.lineWidth = element.lineWidth;
    spec.fillColor = element.fillColor;
    spec.mainColor = element.mainColor;
    spec.radius = element.radius;
    spec.text = Widen(element.text);
    spec.textAngle = element.angle;
    spec.textAlign = element.align;
    spec.textBkMode = element.mode;
    if (element.font)
        spec.font = support::FontSpec{Widen(element.font->name), static_cast<int>(element.font->size),
                                      element.font->bold,        element.font->italic,
                                      element.font->underline,   element.font->strikethrough};
    return spec;
}

Element ElementOf(const support::ElementSpec& spec) {
    Element element;
    element.type = spec.type;
    for (const POINT& point : spec.points)
        element.points.push_back({static_cast<std::int32_t>(point.x), static_cast<std::int32_t>(point.y)});
    element.closed = spec.closed;
    element.lineWidth = spec.lineWidth;
    element.fillColor = spec.fillColor;
    element.mainColor = spec.mainColor;
    element.radius = spec.radius;
    element.text = Narrow(spec.text);
    element.angle = spec.textAngle;
    element.align = spec.textAlign;
    element.mode = spec.textBkMode;
    if (spec.font)
        element.font = Font{Narrow(spec.font->name), static_cast<double>(spec.font->size),
                            spec.font->bold,         spec.font->italic,
                            spec.font->underline,    spec.font->strikethrough};
    return element;
}

std::vector<support::ElementSpec> SpecsOf(const Lines& lines) {
    std::vector<support::ElementSpec> specs;
    for (const std::string& line : lines)
        specs.push_back(SpecOf(line));
    return specs;
}

std::string InCodePage(UINT from, UINT to, const std::string& text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        from, 0, text.data(), static_cast<int>(text.size()), wide.data(), static_cast<int>(wide.size()))));
    std::string bytes(wide.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(to, 0, wide.data(), static_cast<int>(wide.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}
std::string ToAnsi(const std::string& text) {
    return InCodePage(CP_UTF8, CP_ACP, text);
}
std::string FromAnsi(const std::string& bytes) {
    return InCodePage(CP_ACP, CP_UTF8, bytes);
}

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

LONG X(const Step& step, std::size_t at = 1) {
    return Long(step.words.at(at));
}

} // namespace

ComHost::ComHost(Road road) : road_(road), settings_(std::in_place, L",", L".") {
    Draw(0, 0);
}

ComHost::~ComHost() {
    Draw(0, 0);
    for (const std::wstring& inner : inner_)
        RemoveDirectoryW(inner.c_str());
}

/// Sets the factors of the last drawing without drawing anything.
void ComHost::Draw(double printer, double screen) const {
    LONG noMark = -1; // the marshaller refuses null
    EXPECT_OK(support::NewSymbol()->Draw(0, 0, 0, nullptr, nullptr, printer, screen, &noMark));
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
    if (box_)
        box_->ClearLog();
    const Failure failure = Act(plain);
    if (box_) {
        for (const std::string& logged : box_->Log())
            if (std::find(std::begin(kUntold), std::end(kUntold), logged) == std::end(kUntold) &&
                (failing_.empty() || !logged.starts_with(Logged(failing_))))
                outputs_.push_back(Access(logged));
    }
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
    std::wstring text = box.text;
    const std::wstring folder = folder_.Path() + L'\\';
    for (auto at = text.find(folder); at != std::wstring::npos; at = text.find(folder))
        text.erase(at, folder.size());
    const std::string told = Escaped(Narrow(text));
    if (box.buttons == std::vector{IDYES, IDNO} && box.icon == support::BoxIcon::None)
        return "ask " + Narrow(box.title) + ": " + told;
    EXPECT_EQ(box.title, support::ProgramTitle());
    if (box.buttons == std::vector{IDABORT, IDRETRY, IDIGNORE} && box.icon == support::BoxIcon::Stop)
        return "failure " + told;
    if (box.buttons == std::vector{IDOK} && box.icon == support::BoxIcon::None)
        return "notice " + told;
    return "error " + told;
}

std::wstring ComHost::PathOf(const std::string& name) const {
    if (name == ".")
        return folder_.Path();
    std::wstring path = folder_ / Widen(name);
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}

Failure ComHost::Act(const Step& step) {
    if (ActOnFiles(step))
        return {};
    for (const auto act : {&ComHost::ActOnSymbol, &ComHost::ActOnSurface, &ComHost::ActOnPlaces})
        if (const std::optional<Failure> failure = (this->*act)(step))
            return *failure;
    throw std::runtime_error("no such command: " + step.words[0]);
}

bool ComHost::ActOnFiles(const Step& step) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "settings") {
        settings_.reset();
        if (words.at(1) == "german")
            settings_.emplace(L",", L".");
        else
            settings_.emplace(L".", L",");
    } else if (command == "file" || command == "bytes") {
        std::string bytes;
        for (const std::string& line : step.payload)
            bytes += Unescaped(ToAnsi(line)) + (command == "file" ? "\r\n" : "");
        support::WriteBytes(PathOf(words.at(1)), bytes);
    } else if (command == "binary") {
        std::string bytes;
        for (const std::string& line : step.payload)
            bytes += BinaryOf(WordsOf(ToAnsi(line)));
        support::WriteBytes(PathOf(words.at(1)), bytes);
    } else if (command == "folder") {
        inner_.push_back(PathOf(words.at(1)));
        EXPECT_NE(CreateDirectoryW(inner_.back().c_str(), nullptr), FALSE);
    } else if (command == "text" && !support::FileExists(PathOf(words.at(1)))) {
        outputs_.emplace_back("missing");
    } else if (command == "text") {
        outputs_ = FileLines(FromAnsi(support::ReadBytes(PathOf(words.at(1)))));
    } else if (command == "same") {
        const bool same = support::ReadBytes(PathOf(words.at(1))) == support::ReadBytes(PathOf(words.at(2)));
        outputs_.emplace_back(same ? "same" : "different");
    } else if (command == "entities") {
        outputs_ = EntitiesOf(FromAnsi(support::ReadBytes(PathOf(words.at(1)))));
    } else {
        return false;
    }
    return true;
}

Failure ComHost::Call(const wchar_t* member, const std::vector<Value>& arguments) {
    return Dispatch(symbol_).Call(member, arguments).failure;
}

std::optional<Failure> ComHost::ActOnSymbol(const Step& step) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "symbol") {
        const Ref<_CSymElementColl> elements =
            step.payload.empty() ? Ref<_CSymElementColl>() : support::NewElements(SpecsOf(step.payload));
        if (Late())
            return Call(L"CreateNew", {X(step), X(step, 2), X(step, 3), X(step, 4), elements});
        return Outcome(symbol_->CreateNew(X(step), X(step, 2), X(step, 3), X(step, 4), elements.Get()));
    }
    if (command == "at") {
        const std::wstring path = words.size() > 1 ? PathOf(words[1]) : L"";
        return Late() ? Dispatch(symbol_).Put(L"FilePath", path).failure
                      : Outcome(symbol_->put_FilePath(Bstr(path)));
    }
    if (command == "read")
        return Late() ? Call(L"ReadFromFile", {}) : Outcome(symbol_->ReadFromFile());
    if (command == "write")
        return Late() ? Call(L"Write2File", {}) : Outcome(symbol_->Write2File());
    if (command == "show") {
        const Dispatch late(symbol_);
        std::vector<Element> elements;
        for (const support::ElementSpec& spec : support::ElementsOf(symbol_.Get()))
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
        if (Late())
            colour = Dispatch(symbol_).Call(L"GetColor2ColNr", {number, words.size() > 2}).value.Long();
        else
            EXPECT_OK(
                symbol_->GetColor2ColNr(number, words.size() > 2 ? VARIANT_TRUE : VARIANT_FALSE, &colour));
        outputs_.push_back(std::to_string(colour));
        return Failure{};
    }
    if (command == "dxf")
        return Export(step);
    if (command == "katalog" || command == "liste")
        return Load(step);
    return {};
}

Failure ComHost::Export(const Step& step) {
    const std::wstring path = PathOf(step.words.at(5));
    const double angle = Radians(step.words.at(3));
    EXPECT_OK(symbol_->put_Etagenbreite(X(step, 4)));
    if (Late())
        return Call(L"DxfExportSym", {X(step), X(step, 2), angle, path});
    return Outcome(symbol_->DxfExportSym(X(step), X(step, 2), angle, Bstr(path)));
}

Failure ComHost::Load(const Step& step) {
    const Ref<_CSymbolColl> symbols = support::Create<CSymbolColl, _CSymbolColl>();
    const Dispatch late(symbols);
    const std::wstring path = PathOf(step.words.at(1));
    Failure failure;
    if (step.words[0] == "katalog") {
        failure =
            Late() ? late.Call(L"ReadKatalog", {path}).failure : Outcome(symbols->ReadKatalog(Bstr(path)));
    } else {
        std::vector<std::wstring> keys;
        const std::wstring list = Widen(step.words.at(2));
        for (std::size_t at = 0; at < list.size();) {
            const std::size_t end = std::min(list.find(L',', at), list.size());
            if (end > at)
                keys.push_back(list.substr(at, end - at));
            at = end + 1;
        }
        const Ref<support::BasicCollection> names = support::BasicCollection::Create(keys);
        VARIANT_BOOL loaded = VARIANT_FALSE;
        if (Late()) {
            const support::Answer answer =
                late.Call(L"ReadListe", {path, Value(static_cast<IDispatch*>(names.Get()))});
            failure = answer.failure;
            if (failure == Failure{})
                loaded = answer.value.Bool() ? VARIANT_TRUE : VARIANT_FALSE;
        } else {
            failure = Outcome(symbols->ReadListe(Bstr(path), names.Get(), &loaded));
        }
        if (failure == Failure{})
            outputs_.emplace_back(loaded != VARIANT_FALSE ? "yes" : "no");
    }
    LONG count = 0;
    EXPECT_OK(symbols->get_Count(&count));
    Lines names;
    for (LONG i = 1; i <= count; ++i) {
        Ref<_CSymbol> symbol;
        EXPECT_OK(symbols->get_ItemByPos(i, symbol.Put()));
        names.push_back(Narrow(support::NameOf(symbol.Get())));
    }
    std::sort(names.begin(), names.end());
    outputs_.insert(outputs_.end(), names.begin(), names.end());
    return failure;
}

std::optional<Failure> ComHost::ActOnSurface(const Step& step) {
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
        return Draw(step);
    } else if (command == "elements" || command == "element" || command == "tracker") {
        return DrawElements(step);
    } else if (command == "fit") {
        box_->SetScale(std::stod(words.at(1)), std::stod(words.at(2)));
        const Failure failure = Late() ? Call(L"Draw2PBox", {box_}) : Outcome(symbol_->Draw2PBox(box_.Get()));
        return failure;
    } else {
        return {};
    }
    return Failure{};
}

Failure ComHost::Draw(const Step& step) {
    const Lines& words = step.words;
    const double printer = words.size() > 5 ? std::stod(words[4]) : 1;
    const double screen = words.size() > 5 ? std::stod(words[5]) : 1;
    LONG mark = words.size() > 6 ? Long(words[6]) : -1;
    const double angle = Radians(words.at(3));
    if (!Late())
        return Outcome(
            symbol_->Draw(X(step), X(step, 2), angle, box_.Get(), trans_.Get(), printer, screen, &mark));
    std::vector<Value> arguments{X(step), X(step, 2), angle, box_, trans_, printer, screen};
    if (words.size() > 6)
        arguments.push_back(Value::Variable(mark));
    return Call(L"Draw", arguments);
}

Failure ComHost::DrawElements(const Step& step) {
    if (step.words[0] == "elements") {
        const Ref<_CSymElementColl> elements = support::NewElements(SpecsOf(step.payload));
        if (Late())
            return Dispatch(elements).Call(L"Draw", {box_, trans_}).failure;
        return Outcome(elements->Draw(box_.Get(), trans_.Get()));
    }
    const Ref<_CSymElement> element = support::NewElement(SpecOf(step.payload.at(0)));
    const bool tracker = step.words[0] == "tracker";
    if (Late())
        return Dispatch(element).Call(tracker ? L"DrawTracker" : L"Draw", {box_, trans_}).failure;
    return Outcome(tracker ? element->DrawTracker(box_.Get(), trans_.Get())
                           : element->Draw(box_.Get(), trans_.Get()));
}

std::optional<Failure> ComHost::ActOnPlaces(const Step& step) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "scale")
        trans_ = support::NewTrans(std::stod(words.at(1)), words.size() > 2 ? X(step, 2) : 0,
                                   words.size() > 3 ? X(step, 3) : 0);
    else if (command == "factors")
        Draw(std::stod(words.at(1)), std::stod(words.at(2)));
    else if (command == "bounds")
        return Bounds(step);
    else if (command == "hit")
        return Hit(step);
    else if (command == "catch")
        return Catch(step);
    else
        return {};
    return Failure{};
}

Failure ComHost::Bounds(const Step& step) {
    Ref<_CRect> rect;
    const double angle = Radians(step.words.at(3));
    const Failure failure =
        Late() ? Call(L"GetBoundingRect", {X(step), X(step, 2), angle, Value::Variable(rect)})
               : Outcome(symbol_->GetBoundingRect(X(step), X(step, 2), angle, rect.Put()));
    if (failure != Failure{})
        return failure;
    std::string told;
    for (const wchar_t* const edge : {L"Left", L"Top", L"Right", L"Bottom"})
        told += (told.empty() ? "" : " ") + std::to_string(Dispatch(rect).Get(edge).value.Long());
    outputs_.push_back(told);
    return {};
}

Failure ComHost::Hit(const Step& step) {
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
    if (Late()) {
        std::vector<Value> arguments{X(step), X(step, 2), angle, trans_};
        if (rect)
            arguments.emplace_back(rect);
        else
            arguments.insert(arguments.end(), {X(step, 4), X(step, 5)});
        const support::Answer answer =
            Dispatch(symbol_).Call(rect ? L"ObjIdentByRect" : L"ObjIdentByPt", arguments);
        failure = answer.failure;
        if (failure == Failure{})
            hit = answer.value.Bool() ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (rect) {
        failure =
            Outcome(symbol_->ObjIdentByRect(X(step), X(step, 2), angle, trans_.Get(), rect.Get(), &hit));
    } else {
        failure = Outcome(
            symbol_->ObjIdentByPt(X(step), X(step, 2), angle, trans_.Get(), X(step, 4), X(step, 5), &hit));
    }
    if (failure == Failure{})
        outputs_.emplace_back(hit != VARIANT_FALSE ? "yes" : "no");
    return failure;
}

Failure ComHost::Catch(const Step& step) {
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
    if (Late()) {
        const support::Answer answer = Dispatch(symbol_).Call(
            L"CatchPt", {Value::Variable(x), Value::Variable(y), Value::Variable(worldX),
                         Value::Variable(worldY), X(step), X(step, 2), angle, trans_, range});
        failure = answer.failure;
        if (failure == Failure{})
            caught = answer.value.Bool() ? VARIANT_TRUE : VARIANT_FALSE;
    } else {
        failure = Outcome(symbol_->CatchPt(&x, &y, &worldX, &worldY, X(step), X(step, 2), angle, trans_.Get(),
                                           range, &caught));
    }
    const auto told = [](auto a, auto b) {
        return std::to_string(static_cast<LONG>(a)) + "," + std::to_string(static_cast<LONG>(b));
    };
    if (caught == VARIANT_FALSE) {
        const bool untouched = (x == oldX || x != x) && y == oldY && worldX == -77 && worldY == -88;
        EXPECT_TRUE(untouched) << "what is not caught changes nothing";
    }
    if (failure == Failure{})
        outputs_.push_back(caught != VARIANT_FALSE ? told(worldX, worldY) + " at " + told(x, y) : "no");
    return failure;
}

} // namespace golden
