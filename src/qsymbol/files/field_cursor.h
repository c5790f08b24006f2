#pragma once

#include <cstddef>
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
        const char* const start = at_;
        while (at_ != end_ && *at_ != separator_)
            ++at_;
        field = {start, static_cast<std::size_t>(at_ - start)};
        done_ = at_ == end_;
        at_ += done_ ? 0 : 1;
        return true;
    }

private:
    const char* at_;
    const char* end_;
    char separator_;
    bool done_ = false;
};

} // namespace qsymbol
