#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace qsymbol {

/// Gives the fields of a line one after the other: the pieces between separators, empty ones too.
class FieldCursor {
public:
    FieldCursor(std::string_view line, char separator)
        : at_(line.data()), end_(at_ + line.size()), separator_(separator) {}

    /// False behind the last field; the field is then "".
    bool Next(std::string_view& field) {
        if (done_) {
            field = {};
            return false;
        }
        const auto left = static_cast<std::size_t>(end_ - at_);
        const void* const found = left != 0 ? std::memchr(at_, separator_, left) : nullptr;
        done_ = found == nullptr;
        const char* const stop = done_ ? end_ : static_cast<const char*>(found);
        field = {at_, static_cast<std::size_t>(stop - at_)};
        at_ = done_ ? end_ : stop + 1;
        return true;
    }

private:
    const char* at_;
    const char* end_;
    char separator_;
    bool done_ = false;
};

} // namespace qsymbol
