#pragma once

#include <cstdint>
#include <optional>

namespace qsymbol {

/// How a shape of a vector picture is painted. Colours are packed RGB.
struct Paint {
    std::optional<std::int32_t> line; ///< none: no outline
    double width = 0;                 ///< logical units; 0 is a hairline, as thin as the device draws
    std::optional<std::int32_t> fill; ///< none: not filled

    friend bool operator==(const Paint&, const Paint&) = default;
};

} // namespace qsymbol
