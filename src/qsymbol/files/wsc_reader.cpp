#include "qsymbol/files/wsc_reader.h"

#include "base/error.h"
#include "base/utf16_unit.h"
#include "qsymbol/files/library_error.h"
#include "qsymbol/files/line_cursor.h"
#include "qsymbol/files/memory_budget.h"
#include "qsymbol/files/wsc_fields.h"
#include "qsymbol/files/wsc_figures.h"
#include "qsymbol/files/wsc_format.h"
#include "qsymbol/files/wsc_numbers.h"
#include "qsymbol/files/wsc_survey.h"

namespace qsymbol {

using wsc_format::Keyword;

namespace {

/// The pass that reads; the survey has seen every line before.
class WscReader {
public:
    WscReader(Symbol& symbol, std::string_view bytes, const WscSurvey& survey, const FormatRules& rules)
        : symbol_(symbol), bytes_(bytes), survey_(survey), rules_(rules), numbers_(rules.regional),
          budget_(bytes.size()), figures_(symbol, numbers_, budget_) {}

    /// False at an elliptic arc, which ends the import.
    bool Read() {
        LineCursor lines(bytes_);
        std::string_view line;
        while (lines.Next(line) && line.empty()) {
        }
        ReadHeader(line);
        // It was the first line: with an empty one ahead of it, it is a foreign line.
        for (std::size_t i = 0; i < survey_.lines.size(); ++i)
            if (!ReadLine(i))
                return false;
        return true;
    }

private:
    /// The header is looked at ahead of the table, so that a foreign file is told from one without figures.
    void ReadHeader(std::string_view line) {
        WscFields fields(line, bytes_, numbers_);
        std::string_view field;
        fields.Next(field);
        const bool header = wsc_format::KeywordOf(field) == Keyword::Header &&
                            WscFields::Count(line) == wsc_format::kHeaderFields;
        if (!header && !line.empty())
            Raise(LibraryError::NotASymbolFile, u"CSymbol.ReadFromWSCFile", rules_.strings);
        SizeElements(survey_.figures);
        fields.Next(field);
        symbol_.width = numbers_.Whole(field);
        fields.Next(field);
        symbol_.height = numbers_.Whole(field);
        symbol_.refX = wsc_format::kReference;
        symbol_.refY = wsc_format::kReference;
    }

    void SizeElements(std::size_t count) {
        if (count == 0)
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        budget_.Charge(count, sizeof(ElementRecord));
        symbol_.elements = ElementList(count);
    }

    /// How many lines of points follow a figure's line.
    std::size_t ContinuationsOf(std::size_t line) const {
        const auto continues = [](Keyword keyword) {
            return keyword == Keyword::ChainPoints || keyword == Keyword::AreaPoints;
        };
        std::size_t last = line;
        while (last + 1 < survey_.lines.size() && continues(survey_.lines[last + 1].Begins()))
            ++last;
        return last - line;
    }

    /// False at an elliptic arc, which ends the import.
    bool ReadLine(std::size_t number) {
        const WscLine& line = survey_.lines[number];
        WscFields fields(line.Text(), bytes_, numbers_);
        fields.PassKeyword();
        switch (line.Begins()) {
        case Keyword::Line: figures_.OpenLine(fields); break;
        case Keyword::Chain: figures_.OpenChain(fields, ContinuationsOf(number)); break;
        case Keyword::Area: figures_.OpenArea(fields, ContinuationsOf(number)); break;
        case Keyword::Ellipse: figures_.OpenEllipse(fields, false); break;
        case Keyword::FilledOval: figures_.OpenEllipse(fields, true); break;
        case Keyword::Pie: figures_.OpenPie(fields); break;
        case Keyword::Arc: return figures_.OpenArc(fields);
        case Keyword::ChainPoints:
        case Keyword::AreaPoints: figures_.AddPoints(fields); break;
        case Keyword::ArcPoints: figures_.SetArcEnds(fields); break;
        case Keyword::PiePoints: figures_.SetPieOutline(fields); break;
        case Keyword::Header:
        case Keyword::End:
        case Keyword::None: break;
        }
        return true;
    }

    Symbol& symbol_;
    std::string_view bytes_;
    const WscSurvey& survey_;
    const FormatRules& rules_;
    WscNumbers numbers_;
    MemoryBudget budget_;
    WscFigures figures_;
};

} // namespace

namespace {

/// As much of a line as a notice shows.
std::u16string Shown(std::string_view line, const base::CodePage& codePage) {
    constexpr std::size_t kCharacters = 1000;
    constexpr std::size_t kLongestCharacter = 4;
    std::u16string text = codePage.Decode(line.substr(0, kLongestCharacter * (kCharacters + 1)));
    if (text.size() <= kCharacters)
        return text;
    const bool halved = base::IsLowSurrogate(text[kCharacters]);
    text.resize(kCharacters - (halved ? 1 : 0));
    return text + u'…';
}

} // namespace

std::u16string ParseWsc(Symbol& symbol, std::string_view bytes, const FormatRules& rules) {
    const WscSurvey survey = SurveyWsc(bytes);
    if (survey.unknown)
        return u"Folgende Zeile kann nicht verarbeitet werden: " + Shown(*survey.unknown, rules.codePage) +
               u" --> Abbruch";
    const bool whole = WscReader(symbol, bytes, survey, rules).Read();
    return whole ? u"" : u"Ellipsenbögen können nicht verarbeitet werden --> Abbruch";
}

std::uint64_t WscReach(std::string_view beginning) {
    // The last line may go on behind the beginning.
    const std::string_view whole = beginning.substr(0, beginning.rfind('\n') + 1);
    return !whole.empty() && SurveyWsc(whole, WscLines::Passed).unknown ? beginning.size() : UINT64_MAX;
}

} // namespace qsymbol
