#include "qsymbol/dialog/type_ahead.h"

#include "base/letter_case.h"

#include <string_view>

namespace qsymbol {

namespace {

constexpr std::uint64_t kLongestPause = 1000; // milliseconds

/// The first entry that begins so, from a place on, round the end; -1 for none.
int Find(std::span<const std::u16string> names, std::u16string_view beginning, std::size_t from) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::size_t at = (from + i) % names.size();
        if (base::UpperCase(names[at]).starts_with(beginning))
            return static_cast<int>(at);
    }
    return -1;
}

} // namespace

int TypeAhead::Add(char16_t letter, std::uint64_t now, std::span<const std::u16string> names, int selected) {
    if (now - last_ > kLongestPause)
        typed_.clear();
    last_ = now;
    typed_ += base::UpperCase(std::u16string_view(&letter, 1));
    const auto here = static_cast<std::size_t>(selected < 0 ? 0 : selected);
    // A beginning that grows may still be that of the selected entry; a single letter goes on to the next one.
    if (typed_.size() > 1) {
        if (const int found = Find(names, typed_, here); found >= 0)
            return found;
        if (typed_.find_first_not_of(typed_.front()) != std::u16string::npos)
            return -1;
    }
    return Find(names, std::u16string_view(typed_).substr(0, 1), selected < 0 ? 0 : here + 1);
}

} // namespace qsymbol
