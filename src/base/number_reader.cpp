#include "base/number_reader.h"

#include "base/checked.h"
#include "base/powers_of_ten.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace base {

namespace {

/// An exponent beyond this is not read further; no text is long enough to make up for it.
constexpr std::int64_t kFarExponent = 100'000'000'000;
/// More than any double, or the middle between two of them, has in decimal.
constexpr int kMaxDigits = 800;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

int SingleByte(const std::string& separator) {
    return separator.size() == 1 ? static_cast<unsigned char>(separator[0]) : -1;
}

/// Digits collected from a text: an integer mantissa while it is exact, and the digits themselves
/// beyond that.
class Mantissa { // NOLINT(cppcoreguidelines-pro-type-member-init)
public:
    void Add(char digit, bool fraction) {
        if (fraction)
            --exponent_;
        if (count_ == 0 && digit == '0')
            return;
        if (count_ < kExactDigits)
            value_ = value_ * 10 + static_cast<std::uint64_t>(digit - '0');
        if (count_ < kMaxDigits) {
            digits_[static_cast<std::size_t>(count_)] = digit;
            ++count_;
            return;
        }
        // Only the magnitude counts here, and that the number is a little larger than its first digits say.
        ++exponent_;
        if (digit != '0')
            digits_[kMaxDigits - 1] = '1';
    }

    double Value(std::int64_t exponent) const {
        if (count_ == 0)
            return 0.0;
        exponent += exponent_;
        if (count_ <= kExactDigits && exponent >= -22 && exponent <= 22) {
            const auto exact = static_cast<double>(value_);
            const double power = kPowersOfTen[static_cast<std::size_t>(exponent < 0 ? -exponent : exponent)];
            return exponent < 0 ? exact / power : exact * power;
        }
        std::array<char, kMaxDigits + 24> text; // NOLINT: only what is written is read
        char* at = std::copy_n(digits_.data(), count_, text.data());
        *at++ = 'e';
        at = std::to_chars(at, text.data() + text.size(), exponent).ptr;
        double value = 0;
        const auto result = std::from_chars(text.data(), at, value);
        if (result.ec == std::errc::result_out_of_range)
            return exponent + count_ > 0 ? HUGE_VAL : 0.0;
        return value;
    }

private:
    std::uint64_t value_ = 0;
    int count_ = 0;
    std::int64_t exponent_ = 0;
    std::array<char, kMaxDigits> digits_; // NOLINT: only the first count_ are ever read
};

} // namespace

NumberReader::NumberReader(const RegionalSettings& settings)
    : settings_(settings), decimal_(SingleByte(settings.decimal)),
      thousands_(SingleByte(settings.thousands)) {}

std::optional<double> NumberReader::TryPlain(std::string_view text) const {
    const char* at = text.data();
    const char* end = at + text.size();
    while (at != end && IsBlank(*at))
        ++at;
    while (at != end && IsBlank(end[-1]))
        --end;
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+'))
        ++at;
    if (at == end || !(IsDigit(*at) || static_cast<unsigned char>(*at) == decimal_))
        return std::nullopt;

    Mantissa mantissa;
    bool any = false;
    for (; at != end; ++at) {
        if (IsDigit(*at)) {
            mantissa.Add(*at, false);
            any = true;
        } else if (static_cast<unsigned char>(*at) != thousands_ || !any || thousands_ == decimal_) {
            break;
        }
    }
    if (at != end && static_cast<unsigned char>(*at) == decimal_) {
        for (++at; at != end && IsDigit(*at); ++at) {
            mantissa.Add(*at, true);
            any = true;
        }
    }
    if (!any)
        return std::nullopt;
    std::int64_t exponent = 0;
    if (at != end && (*at == 'e' || *at == 'E')) {
        ++at;
        const bool down = at != end && *at == '-';
        if (at != end && (*at == '-' || *at == '+'))
            ++at;
        const char* const first = at;
        for (; at != end && IsDigit(*at); ++at)
            exponent = exponent < kFarExponent ? exponent * 10 + (*at - '0') : exponent;
        if (at == first)
            return std::nullopt;
        exponent = down ? -exponent : exponent;
    }
    if (at != end)
        return std::nullopt;
    const double value = mantissa.Value(exponent);
    return negative ? -value : value;
}

std::optional<double> NumberReader::Parse(std::string_view text) const {
    const std::optional<double> plain = TryPlain(text);
    if (plain || settings_.systemParse == nullptr)
        return plain;
    return settings_.systemParse(text);
}

std::optional<double> NumberReader::TryDecimal(std::string_view text) const {
    const std::optional<double> value = Parse(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

double NumberReader::Decimal(std::string_view text) const {
    const std::optional<double> value = Parse(text);
    if (!value)
        Raise(RunTimeError::TypeMismatch);
    if (!std::isfinite(*value))
        Raise(RunTimeError::Overflow);
    return *value;
}

std::int32_t NumberReader::AnyHundredths(std::string_view text) const {
    return RoundToLong(Decimal(text) * 100.0);
}

std::int32_t NumberReader::AnyHundredthsOrZero(std::string_view text) const {
    return RoundToLong(TryDecimal(text).value_or(0.0) * 100.0);
}

std::int32_t NumberReader::Long(std::string_view text) const {
    const std::int64_t digits = DigitsValue(text.data(), text.size());
    return digits >= 0 ? static_cast<std::int32_t>(digits) : RoundToLong(Decimal(text));
}

std::int16_t NumberReader::Integer(std::string_view text) const {
    return RoundToInteger(Decimal(text));
}

} // namespace base
