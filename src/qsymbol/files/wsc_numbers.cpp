#include "qsymbol/files/wsc_numbers.h"

namespace qsymbol {

std::string_view WscNumbers::WithComma(std::string_view field) {
    const std::size_t point = field.find('.');
    if (point == std::string_view::npos)
        return field;
    scratch_.assign(field);
    scratch_[point] = ',';
    return scratch_;
}

double WscNumbers::Coordinate(std::string_view field) {
    return numbers_.TryDecimal(WithComma(field)).value_or(0.0);
}

std::int32_t WscNumbers::Whole(std::string_view field) {
    return numbers_.Long(WithComma(field));
}

std::int32_t WscNumbers::Hundredths(std::string_view field) {
    return numbers_.Hundredths(WithComma(field));
}

} // namespace qsymbol
