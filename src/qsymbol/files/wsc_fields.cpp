#include "qsymbol/files/wsc_fields.h"

#include "base/powers_of_ten.h"

#include <cstdint>

namespace qsymbol {

namespace {

/// Goes over digits, which are added to the number at its lower end; it is of no use beyond 19 of them.
const char* Digits(const char* at, const char* end, std::uint64_t& number) {
    for (; at != end && *at >= '0' && *at <= '9'; ++at)
        number = number * 10 + static_cast<std::uint64_t>(*at - '0');
    return at;
}

} // namespace

double WscFields::AnyCoordinate() {
    // A minus sign, digits, a point and digits are read here, all other forms by the number reader.
    const bool negative = at_ != end_ && *at_ == '-';
    const char* const first = at_ + (negative ? 1 : 0);
    std::uint64_t number = 0;
    const char* at = Digits(first, end_, number);
    std::ptrdiff_t count = at - first;
    std::ptrdiff_t decimals = 0;
    if (at != end_ && *at == '.' && numbers_.PointIsDecimal()) {
        const char* const point = at + 1;
        at = Digits(point, end_, number);
        decimals = at - point;
        count += decimals;
    }
    if ((at != end_ && *at != wsc_format::kSeparator) || count < 1 || count > base::kExactDigits) {
        std::string_view field;
        Next(field);
        return numbers_.Coordinate(field);
    }
    at_ = at;
    Pass();
    auto value = static_cast<double>(static_cast<std::int64_t>(number));
    if (decimals > 0)
        value /= base::kPowersOfTen[static_cast<std::size_t>(decimals)];
    return negative ? -value : value;
}

} // namespace qsymbol
