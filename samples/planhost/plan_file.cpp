#include "plan_file.h"

#include "text.h"

#include <fstream>
#include <numbers>

namespace {

/// Larger coordinates, in hundredths of a millimetre, would leave the 32 bits of the library.
constexpr long kLongest = 10'000'000;

/// The fields of one line, taken from left to right.
class Record {
public:
    Record(const std::wstring& text, int line) : line_(line) {
        for (std::size_t start = 0, end = 0; end != std::wstring::npos; start = end + 1) {
            end = text.find(L';', start);
            fields_.push_back(text.substr(start, end == std::wstring::npos ? end : end - start));
        }
    }

    int Line() const { return line_; }
    const std::wstring& Kind() const { return fields_[0]; }

    void RequireFields(std::size_t count) const {
        if (fields_.size() != count + 1)
            Fail(Kind() + L" verlangt " + std::to_wstring(count) + L" Felder.");
    }
    std::wstring Text() { return fields_[next_++]; }
    long Number() {
        const std::wstring& field = fields_[next_++];
        wchar_t* end = nullptr;
        const long value = std::wcstol(field.c_str(), &end, 10);
        if (field.empty() || *end != L'\0')
            Fail(L"\"" + field + L"\" ist keine ganze Zahl.");
        return value;
    }
    long Length() {
        const long value = Number();
        if (value < -kLongest || value > kLongest)
            Fail(std::to_wstring(value) + L" mm liegt außerhalb des Blattes.");
        return value;
    }
    POINT Point() {
        const long x = Length();
        return {x, Length()};
    }

    [[noreturn]] void Fail(const std::wstring& reason) const {
        throw Failure{L"Zeile " + std::to_wstring(line_) + L": " + reason};
    }

private:
    int line_;
    std::size_t next_ = 1;
    std::vector<std::wstring> fields_;
};

void TakePlan(Record& record, Plan& plan) {
    record.RequireFields(3);
    plan.title = record.Text();
    plan.width = record.Length();
    plan.height = record.Length();
    if (plan.width <= 0 || plan.height <= 0)
        record.Fail(L"Das Blatt hat keine Fläche.");
}

void TakeFloor(Record& record, Plan& plan) {
    record.RequireFields(5);
    const auto colour = static_cast<COLORREF>(record.Number());
    const POINT leftTop = record.Point();
    const POINT rightBottom = record.Point();
    plan.floors.push_back({colour, {leftTop.x, leftTop.y, rightBottom.x, rightBottom.y}});
}

void TakeWall(Record& record, Plan& plan) {
    record.RequireFields(5);
    const POINT from = record.Point();
    const POINT to = record.Point();
    if (from.x == to.x && from.y == to.y)
        record.Fail(L"Die Wand hat keine Länge.");
    plan.walls.push_back({from, to, record.Length()});
}

void TakeRoom(Record& record, Plan& plan) {
    record.RequireFields(3);
    const std::wstring name = record.Text();
    plan.rooms.push_back({name, record.Point()});
}

void TakeSymbol(Record& record, Plan& plan) {
    record.RequireFields(4);
    const std::wstring name = record.Text();
    const POINT at = record.Point();
    plan.symbols.push_back({name, at, record.Number(), record.Line()});
}

struct RecordKind {
    const wchar_t* name;
    void (*take)(Record& record, Plan& plan);
};

constexpr RecordKind kKinds[] = {{L"PLAN", TakePlan},
                                 {L"FLOOR", TakeFloor},
                                 {L"WALL", TakeWall},
                                 {L"ROOM", TakeRoom},
                                 {L"SYMBOL", TakeSymbol}};

void TakeRecord(Record record, Plan& plan) {
    for (const RecordKind& kind : kKinds) {
        if (record.Kind() == kind.name)
            return kind.take(record, plan);
    }
    record.Fail(L"Unbekannte Zeilenart \"" + record.Kind() + L"\".");
}

} // namespace

double Radians(const PlacedSymbol& placed) {
    return placed.angle * std::numbers::pi / 180;
}

Plan ReadPlan(const std::filesystem::path& file) {
    std::ifstream stream(file);
    if (!stream)
        throw Failure{L"Plan nicht gefunden: " + file.wstring()};
    Plan plan;
    std::string bytes;
    for (int line = 1; std::getline(stream, bytes); ++line) {
        if (!bytes.empty() && bytes.back() == '\r')
            bytes.pop_back();
        if (line == 1 && bytes.starts_with("\xEF\xBB\xBF")) // the mark that some editors put before UTF-8
            bytes.erase(0, 3);
        if (!bytes.empty() && bytes.front() != '#')
            TakeRecord(Record(FromUtf8(bytes), line), plan);
    }
    if (plan.width == 0)
        throw Failure{L"Im Plan fehlt die Zeile PLAN: " + file.wstring()};
    return plan;
}
