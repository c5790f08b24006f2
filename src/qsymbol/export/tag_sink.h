#pragma once

#include "qsymbol/export/fixed_real.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace qsymbol {

/// Collects the group codes and values of a DXF file in memory: every code and every value is a line of
/// its own.
///
/// Codes are texts, because hosts know them by their padding.
class TagSink {
public:
    /// What was collected so far.
    std::string_view Bytes() const { return {bytes_.data(), size_}; }

    void Text(std::string_view code, std::string_view value) {
        char* at = Line(Room(code.size() + value.size() + 2 * kLineEnd), code);
        Take(Line(at, value));
    }

    void Whole(std::string_view code, std::int32_t value);

    /// A real number with fourteen decimals, of which 15 significant digits count. Error 6 when not finite.
    void Real(std::string_view code, double value);

    /// The same for value / 100000, of less than 15 digits: a logical length in drawing units, for example.
    void Fixed(std::string_view code, std::int64_t value) {
        char* at = Line(Room(code.size() + kLongestFixedReal + 2 * kLineEnd), code);
        Take(EndLine(PutFixedReal(at, value)));
    }

private:
    static constexpr std::size_t kLineEnd = 2;

    static char* EndLine(char* at) {
        std::memcpy(at, "\r\n", kLineEnd);
        return at + kLineEnd;
    }
    static char* Line(char* at, std::string_view text) {
        std::memcpy(at, text.data(), text.size());
        return EndLine(at + text.size());
    }

    /// The end of what was collected, with so many free bytes behind it.
    char* Room(std::size_t count) {
        if (bytes_.size() - size_ < count)
            Grow(count);
        return bytes_.data() + size_;
    }
    void Take(const char* end) { size_ = static_cast<std::size_t>(end - bytes_.data()); }
    void Grow(std::size_t count);

    std::string bytes_; ///< collected so far, then free room up to its size
    std::size_t size_ = 0;
    std::string scratch_;
};

} // namespace qsymbol
