#include "cli/commands/table.h"

#include <algorithm>

namespace cli {

namespace {

/// Characters of a UTF-8 text.
std::size_t WidthOf(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

} // namespace

std::string Table::Text(std::size_t leftColumns) const {
    std::vector<std::size_t> widths;
    for (const Line& line : lines_) {
        widths.resize(std::max(widths.size(), line.size()));
        for (std::size_t i = 0; i < line.size(); ++i)
            widths[i] = std::max(widths[i], WidthOf(line[i]));
    }
    std::string text;
    for (const Line& line : lines_) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::size_t blanks = widths[i] - WidthOf(line[i]);
            text.append((i == 0 ? 0 : 2) + (i < leftColumns ? 0 : blanks), ' ');
            text += line[i];
            text.append(i < leftColumns ? blanks : 0, ' ');
        }
        text.erase(text.find_last_not_of(' ') + 1);
        text += '\n';
    }
    return text;
}

} // namespace cli
