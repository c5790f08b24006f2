#include "plan_file.h"

#include "millimetres.h"
#include "text.h"
#include "unfinished_file.h"

#include <cmath>
#include <cstdio>
#include <fstream>
#include <numbers>

namespace {

constexpr char kSymbolKind[] = "SYMBOL;";

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
        if (value < -kLongestMillimetres || value > kLongestMillimetres)
            Fail(std::to_wstring(value) + L" mm liegt außerhalb des Blattes.");
        return value;
    }
    POINT Point() {
        const long x = Length();
        return {x, Length()};
    }
    /// A length in the libraries' units.
    long Units() {
        const std::wstring& field = fields_[next_++];
        const std::optional<long> units = UnitsFromText(field, L'.');
        if (!units)
            Fail(L"\"" + field + L"\" ist keine Länge in Millimetern, die auf ein Blatt passt.");
        return *units;
    }
    double Degrees() {
        const std::wstring& field = fields_[next_++];
        wchar_t* end = nullptr;
        const double value = std::wcstod(field.c_str(), &end);
        if (field.empty() || *end != L'\0' || !std::isfinite(value))
            Fail(L"\"" + field + L"\" ist kein Winkel in Grad.");
        return value;
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
    const LONG x = record.Units();
    const POINT at{x, record.Units()};
    plan.symbols.push_back({name, at, record.Degrees(), record.Line()});
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

/// Degrees with as many decimals as they need, six at most.
std::string DegreesText(double degrees) {
    char text[64];
    std::snprintf(text, sizeof text, "%.6f", degrees);
    std::string trimmed = text;
    trimmed.erase(trimmed.find_last_not_of('0') + 1);
    if (trimmed.back() == '.')
        trimmed.pop_back();
    return trimmed;
}

std::string SymbolLine(const PlacedSymbol& placed) {
    if (placed.name.find_first_of(L";\r\n") != std::wstring::npos)
        throw Failure{L"Der Name \"" + placed.name + L"\" lässt sich nicht in eine Plandatei schreiben."};
    return kSymbolKind + ToUtf8(placed.name) + ';' + ToUtf8(MillimetresText(placed.at.x, L'.')) + ';' +
           ToUtf8(MillimetresText(placed.at.y, L'.')) + ';' + DegreesText(placed.angle);
}

/// The file's lines with the symbols as they are now.
std::vector<std::string> LinesOf(const Plan& plan) {
    const std::string end = !plan.lines.empty() && plan.lines.front().ends_with('\r') ? "\r" : "";
    std::vector<const PlacedSymbol*> known(plan.lines.size() + 1);
    for (const PlacedSymbol& placed : plan.symbols)
        known[placed.line] = &placed;
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < plan.lines.size(); ++i) {
        if (!plan.lines[i].starts_with(kSymbolKind))
            lines.push_back(plan.lines[i]);
        else if (known[i + 1] != nullptr)
            lines.push_back(SymbolLine(*known[i + 1]) + end);
    }
    for (const PlacedSymbol& placed : plan.symbols) {
        if (placed.line == 0)
            lines.push_back(SymbolLine(placed) + end);
    }
    return lines;
}

} // namespace

double Radians(const PlacedSymbol& placed) {
    return placed.angle * std::numbers::pi / 180;
}

std::wstring Describe(const PlacedSymbol& placed) {
    return placed.line == 0 ? L"\"" + placed.name + L"\"" : L"Zeile " + std::to_wstring(placed.line);
}

Plan ReadPlan(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw Failure{L"Plan nicht gefunden: " + file.wstring()};
    return ParsePlan(stream, file.wstring());
}

Plan ParsePlan(std::istream& stream, const std::wstring& name) {
    Plan plan;
    std::string bytes;
    for (int line = 1; std::getline(stream, bytes); ++line) {
        if (line == 1 && bytes.starts_with("\xEF\xBB\xBF")) // the mark that some editors put before UTF-8
            bytes.erase(0, 3);
        plan.lines.push_back(bytes);
        if (!bytes.empty() && bytes.back() == '\r')
            bytes.pop_back();
        if (!bytes.empty() && bytes.front() != '#')
            TakeRecord(Record(FromUtf8(bytes), line), plan);
    }
    if (plan.width == 0)
        throw Failure{L"Im Plan fehlt die Zeile PLAN: " + name};
    return plan;
}

std::string SymbolLines(const std::vector<PlacedSymbol>& symbols) {
    std::string lines;
    for (const PlacedSymbol& placed : symbols)
        lines += SymbolLine(placed) + '\n';
    return lines;
}

void WritePlan(const Plan& plan, const std::filesystem::path& file) {
    const std::vector<std::string> lines = LinesOf(plan);
    UnfinishedFile unfinished(file);
    std::ofstream stream(unfinished.Path(), std::ios::binary);
    for (const std::string& line : lines)
        stream << line << '\n';
    stream.close();
    if (stream && unfinished.Finish())
        return;
    throw Failure{L"Der Plan kann nicht geschrieben werden: " + file.wstring()};
}
