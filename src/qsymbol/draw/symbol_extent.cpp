#include "qsymbol/draw/symbol_extent.h"

#include "qmath/point.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace qsymbol {

namespace {

constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();

std::int32_t Clamped(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp(value, kLowest, kHighest));
}

} // namespace

qmath::Rect SymbolExtent(const Symbol& symbol) {
    std::int64_t left = kHighest;
    std::int64_t top = kHighest;
    std::int64_t right = kLowest;
    std::int64_t bottom = kLowest;
    const auto include = [&](qmath::Point point, std::int64_t reach) {
        left = std::min(left, point.x - reach);
        top = std::min(top, point.y - reach);
        right = std::max(right, point.x + reach);
        bottom = std::max(bottom, point.y + reach);
    };
    for (const ElementRecord& element : symbol.elements) {
        if (element.points.empty())
            continue;
        switch (element.type) {
        case ElementType::Poly:
            for (const qmath::Point point : element.points)
                include(point, 0);
            break;
        case ElementType::Circle:
        case ElementType::Arc: include(element.points[0], std::abs(std::int64_t{element.radius})); break;
        case ElementType::Text: include(element.points[0], 0); break;
        case ElementType::Undefined: break;
        }
    }
    if (left > right)
        return {};
    return {Clamped(left), Clamped(top), Clamped(right), Clamped(bottom)};
}

} // namespace qsymbol
