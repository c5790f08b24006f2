#include "base/number_format.h"

#include "base/error.h"
#include "base/powers_of_ten.h"

#include <array>
#include <charconv>
#include <cmath>

namespace base {

namespace {

/// What a real number shows: digits beyond these are chance.
constexpr int kSignificant = kExactDigits;

/// A decimal number: digits d0 d1 … with the value 0.d0d1… times 10^exponent.
struct Digits {
    std::array<char, kSignificant> digit{};
    int count = 0;
    int exponent = 0;
};

Digits ToDigits(double magnitude) {
    std::array<char, 40> text{};
    const auto* const end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                          std::chars_format::scientific, kSignificant - 1)
                                .ptr;
    Digits result;
    const char* at = text.data();
    for (; at != end && *at != 'e'; ++at) {
        if (*at != '.')
            result.digit[static_cast<std::size_t>(result.count++)] = *at;
    }
    at += at[1] == '+' ? 2 : 1;
    std::from_chars(at, end, result.exponent);
    ++result.exponent;
    return result;
}

/// Keeps the first `keep` digits, rounding halves up in magnitude.
void RoundTo(Digits& number, int keep) {
    if (keep >= number.count)
        return;
    const bool up = keep >= 0 && number.digit[static_cast<std::size_t>(keep)] >= '5';
    number.count = keep > 0 ? keep : 0;
    if (!up)
        return;
    for (int i = number.count - 1; i >= 0; --i) {
        char& digit = number.digit[static_cast<std::size_t>(i)];
        if (digit != '9') {
            ++digit;
            return;
        }
        digit = '0';
    }
    // All nines (or nothing was kept): a one in front.
    number.digit[0] = '1';
    for (int i = 1; i < number.count; ++i)
        number.digit[static_cast<std::size_t>(i)] = '0';
    if (number.count == 0)
        number.count = 1;
    ++number.exponent;
}

} // namespace

void AppendLong(std::string& out, std::int32_t value) {
    std::array<char, 12> text{};
    out.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr);
}

void AppendHundredths(std::string& out, std::int32_t value, std::string_view decimal) {
    const std::uint32_t magnitude =
        value < 0 ? 0U - static_cast<std::uint32_t>(value) : static_cast<std::uint32_t>(value);
    if (value < 0)
        out += '-';
    std::array<char, 12> text{};
    out.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), magnitude / 100).ptr);
    out += decimal;
    out += static_cast<char>('0' + magnitude / 10 % 10);
    out += static_cast<char>('0' + magnitude % 10);
}

void AppendDecimals(std::string& out, double value, int decimals, std::string_view decimal) {
    if (!std::isfinite(value))
        Raise(RunTimeError::Overflow);
    Digits number = ToDigits(std::fabs(value));
    RoundTo(number, number.exponent + decimals);
    bool zero = true;
    for (int i = 0; i < number.count; ++i)
        zero = zero && number.digit[static_cast<std::size_t>(i)] == '0';
    if (value < 0 && !zero)
        out += '-';
    const auto digitAt = [&](int position) {
        return position >= 0 && position < number.count && !zero
                   ? number.digit[static_cast<std::size_t>(position)]
                   : '0';
    };
    if (number.exponent <= 0 || zero)
        out += '0';
    else
        for (int i = 0; i < number.exponent; ++i)
            out += digitAt(i);
    if (decimals > 0)
        out += decimal;
    for (int i = 0; i < decimals; ++i)
        out += zero ? '0' : digitAt(number.exponent + i);
}

} // namespace base
