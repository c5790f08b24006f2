#include "unit/golden/native_host.h"

#include "base/utf8.h"
#include "qsymbol/catalog/catalog_loader.h"
#include "qsymbol/draw/bounds.h"
#include "qsymbol/draw/element_drawing.h"
#include "qsymbol/draw/fitted_drawing.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/export/colour_table.h"
#include "qsymbol/export/dxf_export.h"
#include "qsymbol/files/symbol_file.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

namespace golden {

namespace {

const std::u16string kFolder = u"plan";

qmath::Point PointAt(const Lines& words, std::size_t first) {
    return {Long(words.at(first)), Long(words.at(first + 1))};
}

qsymbol::SymbolPosition Place(const Lines& words) {
    return {PointAt(words, 1), Radians(words.at(3))};
}

qsymbol::ElementRecord RecordOf(const std::string& line) {
    const Element element = ElementOf(line);
    qsymbol::ElementRecord record;
    record.type = static_cast<qsymbol::ElementType>(element.type);
    for (const Spot& point : element.points)
        record.points.push_back({point.x, point.y});
    record.lineClosed = element.closed;
    record.lineWidth = element.lineWidth;
    record.fillColor = element.fillColor;
    record.mainColor = element.mainColor;
    record.radius = element.radius;
    record.text = base::FromUtf8(element.text);
    record.textAngle = element.angle;
    record.textAlign = element.align;
    record.textBkMode = element.mode;
    if (element.font)
        record.font = qsymbol::FontRecord{.name = base::FromUtf8(element.font->name),
                                          .size = element.font->size,
                                          .bold = element.font->bold,
                                          .italic = element.font->italic,
                                          .strikethrough = element.font->strikethrough,
                                          .underline = element.font->underline};
    return record;
}

Element ElementOf(const qsymbol::ElementRecord& record) {
    Element element;
    element.type = static_cast<std::int32_t>(record.type);
    for (const qmath::Point& point : record.points)
        element.points.push_back({point.x, point.y});
    element.closed = record.lineClosed;
    element.lineWidth = record.lineWidth;
    element.fillColor = record.fillColor;
    element.mainColor = record.mainColor;
    element.radius = record.radius;
    element.text = base::ToUtf8(record.text);
    element.angle = record.textAngle;
    element.align = record.textAlign;
    element.mode = record.textBkMode;
    // Only that of a text is ever seen by a client.
    if (record.font && record.type == qsymbol::ElementType::Text)
        element.font = Font{base::ToUtf8(record.font->name),
                            record.font->size,
                            record.font->bold,
                            record.font->italic,
                            record.font->underline,
                            record.font->strikethrough};
    return element;
}

/// A catalogue as the public one keeps it: by name, without regard to case.
class Catalogue final : public qsymbol::CatalogSink {
public:
    void Add(qsymbol::Symbol&& symbol) override {
        const std::u16string name = Name(symbol);
        symbols_.Append(std::move(symbol), name + u"$");
    }
    Lines Names() const {
        Lines names;
        for (std::int32_t i = 1; i <= symbols_.Count(); ++i)
            names.push_back(base::ToUtf8(Name(*symbols_.ItemByPos(i))));
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    qsymbol::KeyedList<qsymbol::Symbol> symbols_;
};

std::u16string PathOf(const std::string& name) {
    return name == "." ? kFolder : kFolder + u"/" + base::FromUtf8(name);
}

std::string Without(std::string text, const std::string& folder) {
    for (std::size_t at = text.find(folder); at != std::string::npos; at = text.find(folder))
        text.erase(at, folder.size());
    return text;
}

} // namespace

NativeHost::NativeHost() : transformation_(support::ScaledTransformation(10)) {}

Lines NativeHost::Do(const Step& step) {
    outputs_.clear();
    std::string failure;
    try {
        Act(step);
    } catch (const base::Error& error) {
        failure = Told(error);
    }
    for (const std::string& access : surface_.Take())
        if (access != "Kind?") // not seen by a host: the library asks for the type of its object
            outputs_.push_back(access);
    const Lines boxes = world_.prompt.TakeTold();
    for (auto box = boxes.rbegin(); box != boxes.rend(); ++box)
        outputs_.insert(outputs_.begin(), Escaped(Without(*box, "plan/")));
    EXPECT_TRUE(world_.prompt.yesNo.empty() && world_.prompt.failures.empty())
        << "answers that nobody asked for";
    if (!failure.empty())
        outputs_.push_back(failure);
    return outputs_;
}

std::string NativeHost::Told(const base::Error& error) const {
    const std::string number = "error " + std::to_string(error.Number());
    if (error.Source().empty())
        return number;
    return number + " " + base::ToUtf8(error.Source()) + ": " + base::ToUtf8(error.Description());
}

void NativeHost::Act(const Step& step) {
    if (!ActOnFiles(step) && !ActOnSymbol(step) && !ActOnSurface(step) && !ActOnPlaces(step))
        throw std::runtime_error("no such command: " + step.words[0]);
}

std::string& NativeHost::File(const std::string& name) {
    return world_.memory.files[PathOf(name)];
}

void NativeHost::Answer(const Lines& answers) {
    for (const std::string& answer : answers) {
        if (answer == "yes" || answer == "no")
            world_.prompt.yesNo.push_back(answer == "yes");
        else if (answer != "ok")
            world_.prompt.failures.push_back(answer == "abort"   ? messages::FailureChoice::Abort
                                             : answer == "retry" ? messages::FailureChoice::Retry
                                                                 : messages::FailureChoice::Ignore);
    }
}

bool NativeHost::ActOnFiles(const Step& step) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "settings") {
        environment_.regional =
            words.at(1) == "german" ? platform::GermanSettings() : platform::EnglishSettings();
    } else if (command == "file" || command == "bytes") {
        std::string& bytes = File(words.at(1));
        bytes.clear();
        for (const std::string& line : step.payload)
            bytes +=
                Unescaped(world_.codePage.Encode(base::FromUtf8(line))) + (command == "file" ? "\r\n" : "");
    } else if (command == "binary") {
        File(words.at(1)).clear();
        for (const std::string& line : step.payload)
            File(words.at(1)) += BinaryOf(WordsOf(world_.codePage.Encode(base::FromUtf8(line))));
    } else if (command == "folder") {
        world_.memory.folders.insert(PathOf(words.at(1)));
    } else if (command == "text" && !world_.memory.files.contains(PathOf(words.at(1)))) {
        outputs_.emplace_back("missing");
    } else if (command == "text") {
        for (const std::string& line : FileLines(base::ToUtf8(world_.codePage.Decode(File(words.at(1))))))
            outputs_.push_back(line);
    } else if (command == "same") {
        outputs_.emplace_back(File(words.at(1)) == File(words.at(2)) ? "same" : "different");
    } else if (command == "entities") {
        for (const std::string& entity : EntitiesOf(base::ToUtf8(world_.codePage.Decode(File(words.at(1))))))
            outputs_.push_back(entity);
    } else if (command == "katalog" || command == "liste") {
        Load(step);
    } else {
        return false;
    }
    return true;
}

void NativeHost::Load(const Step& step) {
    const Lines& words = step.words;
    const bool all = words[0] == "katalog";
    Catalogue catalogue;
    Answer({words.begin() + (all ? 2 : 3), words.end()});
    try {
        if (all) {
            qsymbol::ReadKatalog(PathOf(words.at(1)), catalogue, environment_);
        } else {
            std::set<std::u16string> keys;
            std::u16string list = base::FromUtf8(words.at(2));
            for (std::size_t at = 0; at <= list.size();) {
                const std::size_t end = std::min(list.find(u',', at), list.size());
                keys.insert(list.substr(at, end - at));
                at = end + 1;
            }
            keys.erase(u"");
            const qsymbol::NameList names{[&] { return static_cast<std::int32_t>(keys.size()); },
                                          [&](const std::u16string& name) { return keys.contains(name); }};
            outputs_.emplace_back(
                qsymbol::ReadListe(PathOf(words.at(1)), names, catalogue, environment_) ? "yes" : "no");
        }
    } catch (const base::Error&) {
        for (const std::string& name : catalogue.Names())
            outputs_.push_back(name);
        throw;
    }
    for (const std::string& name : catalogue.Names())
        outputs_.push_back(name);
}

bool NativeHost::ActOnSymbol(const Step& step) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "symbol") {
        symbol_.refX = Long(words.at(1));
        symbol_.refY = Long(words.at(2));
        symbol_.width = Long(words.at(3));
        symbol_.height = Long(words.at(4));
        symbol_.elements.clear();
        for (const std::string& line : step.payload)
            symbol_.elements.push_back(RecordOf(line));
    } else if (command == "at") {
        symbol_.filePath = words.size() > 1 ? PathOf(words[1]) : u"";
    } else if (command == "read" || command == "write") {
        Answer({words.begin() + 1, words.end()});
        if (command == "read")
            ReadFromFile(symbol_, environment_);
        else
            Write2File(symbol_, environment_);
    } else if (command == "show") {
        std::vector<Element> elements;
        for (const qsymbol::ElementRecord& record : symbol_.elements)
            elements.push_back(ElementOf(record));
        outputs_ = SymbolText(symbol_.refX, symbol_.refY, symbol_.width, symbol_.height, elements);
    } else if (command == "dxf") {
        Export(step);
    } else if (command == "colour") {
        outputs_.push_back(std::to_string(
            qsymbol::ColourOfNumber(Long(words.at(1)), words.size() > 2 ? qsymbol::ColourUse::SymbolEditor
                                                                        : qsymbol::ColourUse::Plan)));
    } else {
        return false;
    }
    return true;
}

void NativeHost::Export(const Step& step) {
    symbol_.etagenbreite = Long(step.words.at(4));
    leftOpen_.reset();
    leftOpen_ = qsymbol::AppendToDxfFile(symbol_, Place(step.words), screenFactor_, PathOf(step.words.at(5)),
                                         world_.memory, world_.codePage);
}

bool NativeHost::ActOnSurface(const Step& step) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "surface") {
        surface_.name = base::FromUtf8(words.at(1));
        surface_.kind = words.size() > 2 ? qsymbol::SurfaceKind::Printer : qsymbol::SurfaceKind::PictureBox;
    } else if (command == "mode") {
        surface_.drawMode = Long(words.at(1));
    } else if (command == "fails") {
        surface_.failing = words.size() > 1 ? words[1] : "";
    } else if (command == "draw") {
        qsymbol::DrawFactors factors{.printer = 1, .screen = 1};
        if (words.size() > 5)
            factors = {.printer = std::stod(words[4]), .screen = std::stod(words[5])};
        screenFactor_ = factors.screen;
        qsymbol::DrawSymbol(symbol_, Place(words), surface_, transformation_, factors,
                            words.size() > 6 ? Long(words[6]) : -1);
    } else if (command == "elements") {
        qsymbol::DrawElements(
            step.payload.size(), [&](std::size_t i) { return RecordOf(step.payload[i]); }, surface_,
            transformation_);
    } else if (command == "element") {
        qsymbol::DrawElement(RecordOf(step.payload.at(0)), surface_, transformation_);
    } else if (command == "tracker") {
        qsymbol::DrawTracker(RecordOf(step.payload.at(0)).points, surface_, transformation_);
    } else if (command == "fit") {
        screenFactor_ = qsymbol::kUnscaled.screen;
        qsymbol::DrawFitted(symbol_, surface_, std::stod(words.at(1)), std::stod(words.at(2)));
    } else {
        return false;
    }
    return true;
}

bool NativeHost::ActOnPlaces(const Step& step) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "scale") {
        transformation_ = support::ScaledTransformation(
            std::stod(words.at(1)), words.size() > 2 ? PointAt(words, 2) : qmath::Point{});
    } else if (command == "factors") {
        screenFactor_ = std::stod(words.at(2));
    } else if (command == "bounds") {
        const qmath::Rect bounds = GetBoundingRect(symbol_, Place(words), screenFactor_);
        outputs_.push_back(std::to_string(bounds.left) + " " + std::to_string(bounds.top) + " " +
                           std::to_string(bounds.right) + " " + std::to_string(bounds.bottom));
    } else if (command == "hit") {
        const bool hit =
            words.size() > 6
                ? ObjIdentByRect(symbol_, Place(words), screenFactor_, transformation_,
                                 {Long(words[4]), Long(words[5]), Long(words[6]), Long(words.at(7))})
                : ObjIdentByPt(symbol_, Place(words), screenFactor_, transformation_, PointAt(words, 4));
        outputs_.emplace_back(hit ? "yes" : "no");
    } else if (command == "catch") {
        const auto caught =
            CatchPt(symbol_, Place(words), screenFactor_, transformation_, std::stof(words.at(4)),
                    std::stof(words.at(5)), static_cast<std::int16_t>(Long(words.at(6))));
        const auto told = [](qmath::Point point) {
            return std::to_string(point.x) + "," + std::to_string(point.y);
        };
        outputs_.push_back(caught ? told(caught->world) + " at " + told(caught->screen) : "no");
    } else {
        return false;
    }
    return true;
}

} // namespace golden
