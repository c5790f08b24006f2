#include "qsymbol/files/wsc_survey.h"

#include "base/error.h"
#include "qsymbol/files/field_cursor.h"
#include "qsymbol/files/line_cursor.h"
#include "qsymbol/files/wsc_format.h"

namespace qsymbol {

using wsc_format::Keyword;

namespace {

/// True when the line makes an element; for that its first field is a keyword as a whole.
bool IsFigure(std::string_view line) {
    if (line.size() > kKeyLength && line[kKeyLength] != wsc_format::kSeparator)
        return false;
    return OpensFigure(wsc_format::KeywordOf(line.substr(0, kKeyLength)));
}

/// A header may stand in the first line only. What follows the keyword without a blank does not matter here.
bool MayFollow(std::string_view line) {
    const Keyword keyword = wsc_format::KeywordOf(line.substr(0, kKeyLength));
    return line.empty() || (keyword != Keyword::None && keyword != Keyword::Header);
}

} // namespace

WscSurvey SurveyWsc(std::string_view bytes) {
    LineCursor lines(bytes);
    std::string_view line;
    if (!lines.Next(line))
        base::Raise(base::RunTimeError::InputPastEnd);
    WscSurvey survey;
    survey.figures = IsFigure(line) ? 1 : 0;
    while (lines.Next(line)) {
        if (!MayFollow(line)) {
            survey.unknown = line;
            break;
        }
        survey.figures += IsFigure(line) ? 1 : 0;
    }
    return survey;
}

} // namespace qsymbol
