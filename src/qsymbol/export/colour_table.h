#pragma once

#include <cstdint>

namespace qsymbol {

/// Which surface a colour is meant for; only the neutral colours depend on it.
enum class ColourUse {
    Plan,         ///< drawn on a light surface
    SymbolEditor, ///< drawn on a dark surface
};

/// The colour (red + 256 · green + 65536 · blue) of a colour number 1 to 255; 0 for any other number.
std::int32_t ColourOfNumber(std::int32_t number, ColourUse use);

/// The first number from 1 to 255 that has this colour in a plan; 7, the foreground, when none has.
std::int32_t NumberOfColour(std::int32_t colour);

} // namespace qsymbol
