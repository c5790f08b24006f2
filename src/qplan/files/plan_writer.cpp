#include "base/error.h"
#include "base/utf8.h"
#include "base/whole_file.h"
#include "qplan/files/plan_file.h"
#include "qplan/files/plan_numbers.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

namespace qplan {

namespace {

/// A name or title as a field. Error 5 when it would not read back.
std::string Field(const std::u16string& text) {
    std::string bytes = base::ToUtf8(text);
    if (text.find_first_of(u";\n") != std::u16string::npos || base::FromUtf8(bytes) != text)
        throw base::Error(static_cast<std::int32_t>(base::RunTimeError::InvalidCall), u"",
                          u"Der Name \"" + text + u"\" lässt sich nicht in eine Plandatei schreiben.");
    return bytes;
}

class Writer {
public:
    explicit Writer(const Plan& plan) : plan_(plan) {
        const std::vector<KeptText>& kept = plan.Sheet().kept;
        if (!kept.empty() && kept.front().lines.substr(0, kept.front().lines.find('\n')).ends_with('\r'))
            lineEnd_ = "\r\n";
    }

    std::string Compose() {
        const qplan::Sheet& sheet = plan_.Sheet();
        if (sheet.kept.empty())
            PutSheet(sheet);
        auto kept = sheet.kept.begin();
        const auto putKept = [&](std::int32_t id) {
            for (; kept != sheet.kept.end() && kept->before <= id; ++kept)
                PutLines(kept->lines);
        };
        for (const Placement* placement = plan_.NextAfter(0); placement != nullptr;
             placement = plan_.NextAfter(placement->id)) {
            putKept(placement->id);
            PutSymbol(*placement);
        }
        putKept(std::numeric_limits<std::int32_t>::max());
        return std::move(out_);
    }

private:
    void PutLines(const std::string& lines) {
        out_ += lines;
        if (!lines.ends_with('\n')) // the last line that was read
            out_ += lines.ends_with('\r') ? "\n" : lineEnd_;
    }
    void PutRecord(std::string_view kind, std::string_view text,
                   std::initializer_list<std::int32_t> numbers) {
        out_ += kind;
        out_ += text;
        for (const std::int32_t number : numbers) {
            out_ += ';';
            out_ += std::to_string(number);
        }
        out_ += lineEnd_;
    }

    void PutSheet(const qplan::Sheet& sheet) {
        std::int32_t width = sheet.width;
        std::int32_t height = sheet.height;
        if (width == 0) {
            // No sheet: one that reaches to the last insertion points.
            qmath::Point last;
            for (const Placement* next = plan_.NextAfter(0); next != nullptr;
                 next = plan_.NextAfter(next->id))
                last = {std::max(last.x, next->position.at.x), std::max(last.y, next->position.at.y)};
            width = SideTo(last.x);
            height = SideTo(last.y);
        }
        PutRecord("PLAN;", Field(sheet.title), {width, height});
        for (const auto& [colour, area] : sheet.floors)
            PutRecord("FLOOR", "", {colour, area.left, area.top, area.right, area.bottom});
        for (const auto& [from, to, thickness] : sheet.walls)
            PutRecord("WALL", "", {from.x, from.y, to.x, to.y, thickness});
        for (const auto& [name, middle] : sheet.rooms)
            PutRecord("ROOM;", Field(name), {middle.x, middle.y});
    }
    static std::int32_t SideTo(std::int32_t units) {
        constexpr std::int32_t kLongest = 10'000'000;
        return std::clamp(units / kUnitsPerMillimetre + 1, 1, kLongest);
    }

    void PutSymbol(const Placement& placement) {
        if (placement.symbol >= names_.size())
            names_.resize(placement.symbol + 1);
        std::string& name = names_[placement.symbol];
        if (name.empty())
            name = Field(plan_.NameOf(placement));
        out_ += "SYMBOL;";
        out_ += name;
        out_ += ';';
        AppendMillimetres(out_, placement.position.at.x);
        out_ += ';';
        AppendMillimetres(out_, placement.position.at.y);
        out_ += ';';
        AppendDegrees(out_, placement.position.angle);
        out_ += lineEnd_;
    }

    const Plan& plan_;
    std::string out_;
    std::string_view lineEnd_ = "\n";
    std::vector<std::string> names_; ///< of the symbols, as fields
};

} // namespace

std::string EncodePlan(const Plan& plan) {
    return Writer(plan).Compose();
}

void WritePlan(const Plan& plan, base::FileSystem& files, const std::u16string& path) {
    base::WriteBeside(files, path, EncodePlan(plan));
}

} // namespace qplan
