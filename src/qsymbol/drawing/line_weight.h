#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace qsymbol {

/// The line weight (1/100 mm, which is the logical unit) that stands for a pen's width: the nearest of those
/// that drawings know, 0 for a hairline; none for a pen that is wider than all of them.
inline std::optional<int> LineWeightOf(double width) {
    constexpr std::array kWeights = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                                     53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    if (width > kWeights.back())
        return std::nullopt;
    return *std::min_element(kWeights.begin(), kWeights.end(),
                             [&](int a, int b) { return std::abs(a - width) < std::abs(b - width); });
}

} // namespace qsymbol
