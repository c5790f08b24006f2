#pragma once

#include "base/digits.h"
#include "qsymbol/files/wsc_box.h"
#include "qsymbol/files/wsc_format.h"
#include "qsymbol/files/wsc_numbers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qsymbol {

/// Gives the fields of an import file's line one after the other, as texts or as coordinates. The line and
/// the numbers outlive it.
class WscFields {
public:
    WscFields(std::string_view line, std::string_view file, WscNumbers& numbers)
        : at_(line.data()), end_(at_ + line.size()), fileEnd_(file.data() + file.size()), numbers_(numbers) {}

    /// Number of fields of a line: blanks plus one.
    static std::size_t Count(std::string_view line) {
        return static_cast<std::size_t>(std::count(line.begin(), line.end(), wsc_format::kSeparator)) + 1;
    }

    /// False behind the last field; the field is then "".
    bool Next(std::string_view& field) {
        const bool there = !done_;
        const char* const start = at_;
        while (at_ != end_ && *at_ != wsc_format::kSeparator)
            ++at_;
        field = {start, static_cast<std::size_t>(at_ - start)};
        Pass();
        return there;
    }

    /// Goes over the first field, which is known to be a keyword.
    void PassKeyword() {
        at_ += kKeyLength;
        Pass();
    }

    /// True when there is another field, be it an empty one.
    bool More() const { return !done_; }

    /// The next field as a coordinate, by WscNumbers::Coordinate.
    double Coordinate() {
        // Nearly all are whole numbers of up to seven digits. What follows the line in the file is no digit,
        // so that it does no harm to look at it.
        if (fileEnd_ - at_ < kLookAhead)
            return AnyCoordinate();
        const std::ptrdiff_t sign = *at_ == '-' ? 1 : 0;
        std::int64_t value = 0;
        const auto count = static_cast<std::ptrdiff_t>(base::LeadingDigits(at_ + sign, value));
        const char* const stop = at_ + sign + count;
        if (count < 1 || count > 7 || (stop != end_ && *stop != wsc_format::kSeparator))
            return AnyCoordinate();
        at_ = stop;
        Pass();
        return sign != 0 ? -static_cast<double>(value) : static_cast<double>(value);
    }

    /// The next two fields as x and y.
    WscPlace Place() {
        const double x = Coordinate();
        return {x, Coordinate()};
    }

private:
    /// A sign and the digits that are looked at together.
    static constexpr std::ptrdiff_t kLookAhead = 9;

    /// The long way to Coordinate, for every form.
    double AnyCoordinate();

    /// Goes over the separator behind a field.
    void Pass() {
        done_ = at_ == end_;
        at_ += done_ ? 0 : 1;
    }

    const char* at_;
    const char* end_;
    const char* fileEnd_;
    WscNumbers& numbers_;
    bool done_ = false;
};

} // namespace qsymbol
