#include "qsymbol/dialog/preview_offset.h"

#include <algorithm>

namespace qsymbol {

qmath::Point PreviewOffset(std::int32_t symbolWidth, std::int32_t symbolHeight, std::int32_t boxWidth,
                           std::int32_t boxHeight) {
    if (symbolWidth <= 0 || symbolHeight <= 0 || boxWidth <= 0 || boxHeight <= 0)
        return {};
    const double scale =
        std::max(static_cast<double>(symbolWidth) / boxWidth, static_cast<double>(symbolHeight) / boxHeight);
    const auto half = [&](std::int32_t box, std::int32_t symbol) {
        return static_cast<std::int32_t>(std::max((box - symbol / scale) / 2, 0.0));
    };
    return {half(boxWidth, symbolWidth), half(boxHeight, symbolHeight)};
}

} // namespace qsymbol
