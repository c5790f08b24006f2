#pragma once

#include <cstring>
#include <string_view>

namespace qsymbol {

/// Gives the lines of a text one after the other. A line ends with LF; a CR right before it is dropped.
class LineCursor {
public:
    explicit LineCursor(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

    /// False at the end of the text; nothing follows a last LF.
    bool Next(std::string_view& line) {
        if (at_ == end_)
            return false;
        const auto* const feed = static_cast<const char*>(std::memchr(at_, '\n', Distance(at_, end_)));
        const char* const stop = feed != nullptr ? feed : end_;
        const bool carriageReturn = feed != nullptr && feed != at_ && feed[-1] == '\r';
        line = {at_, Distance(at_, stop) - (carriageReturn ? 1 : 0)};
        at_ = feed != nullptr ? feed + 1 : end_;
        return true;
    }

    /// True when the text is used up, with or without a last LF.
    bool AtEnd() const { return at_ == end_; }

private:
    static std::size_t Distance(const char* from, const char* to) {
        return static_cast<std::size_t>(to - from);
    }

    const char* at_;
    const char* end_;
};

} // namespace qsymbol
