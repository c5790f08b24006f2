#include "qsymbol/compare/symbol_difference.h"

#include "qsymbol/compare/element_changes.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace qsymbol {

namespace {

/// An element and its number in its symbol.
struct Numbered {
    const ElementRecord* element;
    std::size_t number;
};
using Side = std::vector<Numbered>;

Side SideOf(const Symbol& symbol, Precision precision) {
    Side side;
    for (std::size_t i = 0; i < symbol.elements.size(); ++i)
        if (precision == Precision::Exact || IsKnown(symbol.elements[i].type))
            side.push_back({&symbol.elements[i], i + 1});
    return side;
}

class Alignment {
public:
    Alignment(Side before, Side after, Precision precision)
        : before_(std::move(before)), after_(std::move(after)), precision_(precision) {}

    std::vector<ElementDifference> Run() {
        std::size_t first = 0;
        std::size_t oldEnd = before_.size();
        std::size_t newEnd = after_.size();
        while (first < oldEnd && first < newEnd && Same(first, first))
            ++first;
        while (oldEnd > first && newEnd > first && Same(oldEnd - 1, newEnd - 1)) {
            --oldEnd;
            --newEnd;
        }
        // The table of the longest common sequence; beyond this it is not worth its memory.
        constexpr std::size_t kLargestTable = std::size_t{1} << 22;
        if ((oldEnd - first + 1) <= kLargestTable / (newEnd - first + 1))
            AlignByCommonSequence(first, oldEnd, newEnd);
        else
            PutGap(first, oldEnd, first, newEnd);
        return std::move(found_);
    }

private:
    bool Same(std::size_t before, std::size_t after) const {
        return SameElement(*before_[before].element, *after_[after].element, precision_);
    }

    void AlignByCommonSequence(std::size_t first, std::size_t oldEnd, std::size_t newEnd) {
        const std::size_t rows = oldEnd - first;
        const std::size_t columns = newEnd - first;
        const auto at = [&](std::size_t row, std::size_t column) { return row * (columns + 1) + column; };
        // The length of the common sequence of what follows each pair.
        std::vector<std::uint32_t> length((rows + 1) * (columns + 1));
        std::vector<bool> same((rows + 1) * (columns + 1));
        for (std::size_t row = rows; row-- > 0;)
            for (std::size_t column = columns; column-- > 0;) {
                same[at(row, column)] = Same(first + row, first + column);
                length[at(row, column)] = same[at(row, column)] ? length[at(row + 1, column + 1)] + 1
                                                                : std::max(length[at(row + 1, column)],
                                                                           length[at(row, column + 1)]);
            }
        std::size_t row = 0;
        std::size_t column = 0;
        std::size_t gapRow = 0;
        std::size_t gapColumn = 0;
        while (row < rows && column < columns) {
            if (same[at(row, column)]) {
                PutGap(first + gapRow, first + row, first + gapColumn, first + column);
                gapRow = ++row;
                gapColumn = ++column;
            } else if (length[at(row + 1, column)] >= length[at(row, column + 1)]) {
                ++row;
            } else {
                ++column;
            }
        }
        PutGap(first + gapRow, oldEnd, first + gapColumn, newEnd);
    }

    /// Between two places where both sides agree: the next element of the same kind is the changed one.
    void PutGap(std::size_t before, std::size_t oldEnd, std::size_t after, std::size_t newEnd) {
        for (; before < oldEnd; ++before) {
            const ElementType type = before_[before].element->type;
            std::size_t match = after;
            while (match < newEnd && after_[match].element->type != type)
                ++match;
            if (match == newEnd) {
                found_.push_back({type, before_[before].number, 0, {}});
                continue;
            }
            PutAdded(after, match);
            std::vector<Change> changes =
                ElementChanges(*before_[before].element, *after_[match].element, precision_);
            if (!changes.empty())
                found_.push_back({type, before_[before].number, after_[match].number, std::move(changes)});
            after = match + 1;
        }
        PutAdded(after, newEnd);
    }

    void PutAdded(std::size_t after, std::size_t newEnd) {
        for (; after < newEnd; ++after)
            found_.push_back({after_[after].element->type, 0, after_[after].number, {}});
    }

    Side before_;
    Side after_;
    Precision precision_;
    std::vector<ElementDifference> found_;
};

} // namespace

SymbolDifference Compare(const Symbol& before, const Symbol& after, Precision precision) {
    SymbolDifference difference;
    const auto header = [&](std::string_view field, std::int32_t from, std::int32_t to) {
        if (from != to)
            difference.header.push_back({field, ValueOf(from), ValueOf(to)});
    };
    header("width", before.width, after.width);
    header("height", before.height, after.height);
    header("refX", before.refX, after.refX);
    header("refY", before.refY, after.refY);
    difference.elements = Alignment(SideOf(before, precision), SideOf(after, precision), precision).Run();
    return difference;
}

} // namespace qsymbol
