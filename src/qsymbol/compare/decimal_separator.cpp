#include "qsymbol/compare/decimal_separator.h"

#include <algorithm>

namespace qsymbol {

namespace {

/// Cuts the part before the separator off the text.
std::string_view Next(std::string_view& text, char separator) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

} // namespace

std::optional<char> DecimalSeparatorOf(std::string_view bytes) {
    while (!bytes.empty()) {
        std::string_view line = Next(bytes, '\n');
        if (line.starts_with("STRING"))
            continue;
        while (!line.empty()) {
            const std::string_view field = Next(line, ';');
            const std::size_t at =
                field.starts_with("NAM=") ? std::string_view::npos : field.find_last_of(",.");
            if (at != std::string_view::npos)
                return field[at];
        }
    }
    return std::nullopt;
}

} // namespace qsymbol
