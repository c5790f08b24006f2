#pragma once

namespace qsymbol {

/// The two scale factors of a draw call.
struct DrawFactors {
    double printer = 0; ///< for the printer and the print preview
    double screen = 0;  ///< for the plan's main drawing area
};

/// What previews and placing tools draw with.
inline constexpr DrawFactors kUnscaled{.printer = 1, .screen = 1};

/// A factor for which 0 means unscaled.
constexpr double FactorOrOne(double factor) {
    return factor != 0 ? factor : 1;
}

} // namespace qsymbol
