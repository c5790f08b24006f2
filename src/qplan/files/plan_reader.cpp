#include "base/error.h"
#include "base/file_content.h"
#include "base/utf8.h"
#include "qplan/files/plan_file.h"
#include "qplan/files/plan_numbers.h"

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>

namespace qplan {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF"; // which some editors put before UTF-8
/// Larger lengths of a sheet would leave the 32 bits of logical units.
constexpr std::int32_t kLongestMillimetres = 10'000'000;
constexpr std::int32_t kLargestColour = 0xFFFFFF;

[[noreturn]] void Fail(std::int32_t number, std::size_t line, std::u16string reason) {
    throw base::Error(number, u"",
                      u"Zeile " + base::FromUtf8(std::to_string(line)) + u": " + std::move(reason));
}

std::u16string Quoted(std::string_view text) {
    constexpr std::size_t kShown = 100;
    std::u16string quoted =
        u"\""; // joined piece by piece: some compilers see dangers in a sum that begins with a literal
    quoted += base::FromUtf8(text.substr(0, kShown));
    quoted += u'"';
    return quoted;
}

/// The fields of one line, taken from left to right.
class Record {
public:
    Record(std::string_view text, std::size_t line) : rest_(text), line_(line) { kind_ = Text(); }

    std::string_view Kind() const { return kind_; }
    void RequireFields(std::size_t count) const {
        std::size_t fields = isAtEnd_ ? 0 : 1;
        for (const char unit : rest_)
            fields += unit == ';' ? 1 : 0;
        if (fields != count)
            Fail(base::FromUtf8(kind_) + u" verlangt " + base::FromUtf8(std::to_string(count)) + u" Felder.");
    }
    std::string_view Text() {
        const std::size_t end = rest_.find(';');
        const std::string_view field = rest_.substr(0, end);
        isAtEnd_ = end == std::string_view::npos;
        rest_.remove_prefix(isAtEnd_ ? rest_.size() : end + 1);
        return field;
    }
    std::int32_t Number(std::int32_t lowest, std::int32_t highest, std::u16string_view outside) {
        const std::string_view field = Text();
        const std::optional<std::int32_t> value = WholeNumber(field);
        if (!value)
            Fail(Quoted(field) + u" ist keine ganze Zahl.");
        if (*value < lowest || *value > highest)
            Fail(Quoted(field) + std::u16string(outside));
        return *value;
    }
    std::int32_t Length(std::int32_t lowest = -kLongestMillimetres) {
        return Number(lowest, kLongestMillimetres, u" mm liegt außerhalb des Blattes.");
    }
    qmath::Point Point() {
        const std::int32_t x = Length();
        return {x, Length()};
    }
    std::int32_t Units() {
        const std::string_view field = Text();
        const std::optional<std::int32_t> units = UnitsFromMillimetres(field);
        if (!units)
            Fail(Quoted(field) + u" ist keine Länge in Millimetern, die auf ein Blatt passt.");
        return *units;
    }
    double Angle() {
        const std::string_view field = Text();
        const std::optional<double> radians = RadiansFromDegrees(field);
        if (!radians)
            Fail(Quoted(field) + u" ist kein Winkel in Grad.");
        return *radians;
    }
    [[noreturn]] void Fail(std::u16string reason) const {
        qplan::Fail(kInvalidFileFormat, line_, std::move(reason));
    }
    [[noreturn]] void FailForSymbol(std::string_view name) const {
        qplan::Fail(static_cast<std::int32_t>(base::RunTimeError::InvalidCall), line_,
                    u"Das Symbol " + Quoted(name) + u" ist nicht im Katalog.");
    }

private:
    std::string_view rest_;
    std::string_view kind_;
    std::size_t line_;
    bool isAtEnd_ = false;
};

/// Fills a plan with the records of a file.
class Reader {
public:
    explicit Reader(Plan& plan) : plan_(plan) {}

    void Read(std::string_view bytes) {
        std::size_t line = 0;
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t end = bytes.find('\n', at);
            const std::size_t next = end == std::string_view::npos ? bytes.size() : end + 1;
            TakeLine(bytes.substr(at, next - at), ++line);
            at = next;
        }
        if (sheet_.width == 0)
            throw base::Error(kInvalidFileFormat, u"", u"Im Plan fehlt die Zeile PLAN.");
        plan_.SetSheet(std::move(sheet_));
    }

private:
    void TakeLine(std::string_view whole, std::size_t line) {
        std::string_view text = whole;
        if (line == 1 && text.starts_with(kByteOrderMark))
            text.remove_prefix(kByteOrderMark.size());
        for (const char end : {'\n', '\r'})
            if (text.ends_with(end))
                text.remove_suffix(1);
        if (text.starts_with("SYMBOL;"))
            return TakeSymbol(Record(text, line));
        if (!text.empty() && text.front() != '#')
            TakeRecord(Record(text, line));
        Keep(whole);
    }

    void Keep(std::string_view whole) {
        if (sheet_.kept.empty() || sheet_.kept.back().before != plan_.LastId() + 1)
            sheet_.kept.push_back({plan_.LastId() + 1, {}});
        sheet_.kept.back().lines += whole;
    }

    void TakeRecord(Record record) {
        struct Kind {
            std::string_view name;
            void (Reader::*take)(Record& record);
        };
        constexpr std::array kKinds{Kind{"PLAN", &Reader::TakePlan}, Kind{"FLOOR", &Reader::TakeFloor},
                                    Kind{"WALL", &Reader::TakeWall}, Kind{"ROOM", &Reader::TakeRoom}};
        for (const Kind& kind : kKinds)
            if (record.Kind() == kind.name)
                return (this->*kind.take)(record);
        record.Fail(u"Unbekannte Zeilenart " + Quoted(record.Kind()) + u".");
    }

    void TakePlan(Record& record) {
        record.RequireFields(3);
        if (sheet_.width != 0)
            record.Fail(u"Der Plan hat schon eine Zeile PLAN.");
        sheet_.title = base::FromUtf8(record.Text());
        sheet_.width = record.Length();
        sheet_.height = record.Length();
        if (sheet_.width <= 0 || sheet_.height <= 0)
            record.Fail(u"Das Blatt hat keine Fläche.");
    }
    void TakeFloor(Record& record) {
        record.RequireFields(5);
        Floor floor;
        floor.colour = record.Number(0, kLargestColour, u" ist keine Farbe.");
        const qmath::Point leftTop = record.Point();
        const qmath::Point rightBottom = record.Point();
        floor.area = {leftTop.x, leftTop.y, rightBottom.x, rightBottom.y};
        sheet_.floors.push_back(floor);
    }
    void TakeWall(Record& record) {
        record.RequireFields(5);
        Wall wall;
        wall.from = record.Point();
        wall.to = record.Point();
        if (wall.from == wall.to)
            record.Fail(u"Die Wand hat keine Länge.");
        wall.thickness = record.Length(0);
        sheet_.walls.push_back(wall);
    }
    void TakeRoom(Record& record) {
        record.RequireFields(3);
        std::u16string name = base::FromUtf8(record.Text());
        sheet_.rooms.push_back({std::move(name), record.Point()});
    }
    void TakeSymbol(Record record) {
        record.RequireFields(4);
        const std::string_view name = record.Text();
        const std::int32_t x = record.Units();
        const std::int32_t y = record.Units();
        const qsymbol::SymbolPosition position{.at = {x, y}, .angle = record.Angle()};
        if (const auto known = symbols_.find(name); known != symbols_.end()) {
            plan_.AddUsed(known->second, position);
            return;
        }
        if (plan_.Symbols() == nullptr)
            base::Raise(base::RunTimeError::ObjectNotSet);
        const std::u16string wide = base::FromUtf8(name);
        if (plan_.Symbols()->Find(wide) == nullptr)
            record.FailForSymbol(name);
        const std::int32_t id = plan_.Add(wide, position);
        symbols_.emplace(name, plan_.ById(id)->symbol);
    }

    Plan& plan_;
    Sheet sheet_;
    std::unordered_map<std::string_view, std::uint32_t> symbols_; ///< that the file has named so far
};

} // namespace

void DecodePlan(Plan& plan, std::string_view bytes) {
    Plan next = plan.Successor();
    Reader(next).Read(bytes);
    plan = std::move(next);
}

void ReadPlan(Plan& plan, base::FileSystem& files, const std::u16string& path) {
    DecodePlan(plan, base::FileContent(files, path).Bytes());
}

} // namespace qplan
