#include "qsymbol/draw/symbol_extent.h"

#include "qsymbol/draw/text_box.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace qsymbol {

namespace {

/// What doubles add to a whole number by themselves does not make a box larger.
constexpr double kNoise = 1e-6;

std::int32_t Whole(double value) {
    constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(value, kLowest, kHighest));
}

} // namespace

qmath::Rect SymbolExtent(const Symbol& symbol, const base::TextMeasure* texts) {
    qmath::Box box = symbol.elements.Extent().drawn;
    if (texts != nullptr)
        for (const ElementRecord& element : symbol.elements)
            if (element.type == ElementType::Text)
                IncludeText(box, element, *texts);
    if (box.IsEmpty())
        return {};
    return {Whole(std::floor(box.left + kNoise)), Whole(std::floor(box.top + kNoise)),
            Whole(std::ceil(box.right - kNoise)), Whole(std::ceil(box.bottom - kNoise))};
}

} // namespace qsymbol
