#pragma once

#include "qsymbol/files/wsc_format.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace qsymbol {

/// A line that does something, as small as can be: there are many.
class WscLine {
public:
    WscLine(std::string_view line, wsc_format::Keyword keyword)
        : at_(line.data()),
          sizeAndKeyword_(std::uint64_t{line.size()} << 8 | static_cast<std::uint64_t>(keyword)) {}

    std::string_view Text() const { return {at_, static_cast<std::size_t>(sizeAndKeyword_ >> 8)}; }
    wsc_format::Keyword Begins() const { return static_cast<wsc_format::Keyword>(sizeAndKeyword_ & 0xFF); }

private:
    const char* at_;
    std::uint64_t sizeAndKeyword_;
};

/// Whether a survey is to name the lines, or is made for the rest of what it says.
enum class WscLines { Kept, Passed };

/// What an import file holds, found before any of it is read.
struct WscSurvey {
    std::size_t figures = 0; ///< lines that make an element
    /// Behind the first line those whose first field is a keyword as a whole. They take no more memory than a
    /// MemoryBudget sets aside for texts, which these files do not have.
    std::vector<WscLine> lines{};
    std::optional<std::string_view> unknown{}; ///< the first line that cannot be processed
};

/// Looks at every line: behind the first one only empty lines and lines that begin with a known keyword may
/// follow. Stops at the first other line. Error 62 for a file without any byte.
WscSurvey SurveyWsc(std::string_view bytes, WscLines kept = WscLines::Kept);

} // namespace qsymbol
