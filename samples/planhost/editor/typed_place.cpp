#include "typed_place.h"

#include "../millimetres.h"

std::optional<long> TypedLength(const std::wstring& text) {
    const std::optional<long> units = UnitsFromText(text, L',');
    return units ? units : UnitsFromText(text, L'.');
}

std::optional<TypedMove> TypedPlace(std::wstring text) {
    const bool isRelative = text.starts_with(L'@');
    if (isRelative)
        text.erase(0, 1);
    text.erase(0, text.find_first_not_of(L' '));
    const std::size_t gap = text.find_first_of(L"; ");
    if (gap == std::wstring::npos)
        return std::nullopt;
    const std::optional<long> x = TypedLength(text.substr(0, gap));
    std::wstring rest = text.substr(gap);
    rest.erase(0, rest.find_first_not_of(L"; "));
    const std::optional<long> y = TypedLength(rest);
    if (!x || !y)
        return std::nullopt;
    return TypedMove{{*x, *y}, isRelative};
}
