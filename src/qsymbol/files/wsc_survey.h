#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace qsymbol {

/// What an import file holds, found before any of it is read.
struct WscSurvey {
    std::size_t figures = 0;                   ///< lines that make an element
    std::optional<std::string_view> unknown{}; ///< the first line that cannot be processed
};

/// Looks at every line: behind the first one only empty lines and lines that begin with a known keyword may
/// follow. Stops at the first other line. Error 62 for a file without any byte.
WscSurvey SurveyWsc(std::string_view bytes);

} // namespace qsymbol
