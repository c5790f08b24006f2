#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace qsymbol {

/// Finds entries of a list by their first letters as they are typed, one shortly after the other. Upper and lower case
/// are the same.
class TypeAhead {
public:
    /// The entry to go to after a further letter, from the selected one on, round the end of the list; -1 when none
    /// begins so. The same letter again and again goes through all entries that begin with it. now: milliseconds of any
    /// clock; selected: -1 for none.
    int Add(char16_t letter, std::uint64_t now, std::span<const std::u16string> names, int selected);

private:
    std::u16string typed_;
    std::uint64_t last_ = 0;
};

} // namespace qsymbol
