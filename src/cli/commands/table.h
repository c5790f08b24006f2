#pragma once

#include <string>
#include <vector>

namespace cli {

/// Lines of cells as text in columns: the first to the left, the others to the right. UTF-8.
class Table {
public:
    using Line = std::vector<std::string>;

    /// The first line is the head. All lines have as many cells.
    void Add(Line line) { lines_.push_back(std::move(line)); }
    std::string Text(std::size_t leftColumns) const;

private:
    std::vector<Line> lines_;
};

} // namespace cli
