#include "qsymbol/files/wsc_survey.h"

#include "base/error.h"
#include "qsymbol/files/field_cursor.h"
#include "qsymbol/files/line_cursor.h"
#include "qsymbol/files/wsc_format.h"

namespace qsymbol {

using wsc_format::Keyword;

namespace {

/// The keyword that the line begins with, whatever follows it.
Keyword Beginning(std::string_view line) {
    return wsc_format::KeywordOf(line.substr(0, kKeyLength));
}

/// A header may stand in the first line only. What follows the keyword without a blank does not matter here.
bool MayFollow(std::string_view line, Keyword keyword) {
    return line.empty() || (keyword != Keyword::None && keyword != Keyword::Header);
}

/// Few lines that do something have fewer bytes, their ends included.
constexpr std::size_t kShortLine = 12;

/// True when the line's first field is its keyword, and no longer word.
bool IsWhole(std::string_view line) {
    return line.size() <= kKeyLength || line[kKeyLength] == wsc_format::kSeparator;
}

} // namespace

WscSurvey SurveyWsc(std::string_view bytes, WscLines kept) {
    LineCursor lines(bytes);
    std::string_view line;
    if (!lines.Next(line))
        base::Raise(base::RunTimeError::InputPastEnd);
    WscSurvey survey;
    if (kept == WscLines::Kept)
        survey.lines.reserve(bytes.size() / kShortLine + 1);
    survey.figures = IsWhole(line) && OpensFigure(Beginning(line)) ? 1 : 0;
    while (lines.Next(line)) {
        const Keyword keyword = Beginning(line);
        if (!MayFollow(line, keyword)) {
            survey.unknown = line;
            break;
        }
        if (line.empty() || !IsWhole(line))
            continue;
        survey.figures += OpensFigure(keyword) ? 1 : 0;
        if (kept == WscLines::Kept)
            survey.lines.emplace_back(line, keyword);
    }
    return survey;
}

} // namespace qsymbol
