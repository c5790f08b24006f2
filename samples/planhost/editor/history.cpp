#include "history.h"

#include <algorithm>
#include <utility>

PlanChange Difference(const std::vector<PlacedSymbol>& before, const std::vector<PlacedSymbol>& after) {
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t first = 0;
    while (first < shorter && before[first] == after[first])
        ++first;
    std::size_t last = 0;
    while (last < shorter - first && before[before.size() - 1 - last] == after[after.size() - 1 - last])
        ++last;
    const auto between = [&](const std::vector<PlacedSymbol>& symbols) {
        return std::vector(symbols.begin() + static_cast<std::ptrdiff_t>(first),
                           symbols.end() - static_cast<std::ptrdiff_t>(last));
    };
    return {first, between(before), between(after)};
}

void History::Begin() {
    steps_.clear();
    next_ = 0;
    start_ = ++lastState_;
}

void History::Add(PlanChange change, bool continues) {
    steps_.resize(next_);
    if (continues && next_ > 0 && steps_.back().canBeContinued) {
        PlanChange& last = steps_.back().change;
        if (last.first == change.first && last.after == change.before) {
            last.after = std::move(change.after);
            steps_.back().state = ++lastState_;
            return;
        }
    }
    steps_.push_back({std::move(change), ++lastState_, continues});
    ++next_;
}
